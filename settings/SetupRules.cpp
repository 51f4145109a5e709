#include "settings/SetupRules.h"

namespace {

constexpr int32_t Hourglass = 3;

}  // namespace

TypeRules RulesOf(int32_t clockType) {
    switch (clockType) {
        case 0:
        case Hourglass: return {.SecondPeriod = false, .Bonus = false, .MoveAmount = false};
        case 1: return {.SecondPeriod = true, .Bonus = false, .MoveAmount = true};
        default: return {.SecondPeriod = true, .Bonus = true, .MoveAmount = true};
    }
}

void ChooseClockType(Settings& settings, int32_t type) {
    settings.SetClockType(type);
    if (type == Hourglass) settings.Control.CountTimeDown = true;
}

Settings WithoutWhatTypeLacks(Settings settings) {
    const TypeRules rules = RulesOf(settings.ClockType);
    if (!rules.SecondPeriod) settings.Control.SecondPeriodTime.fill(0);
    if (!rules.Bonus) settings.Control.MoveBonus.fill(0);
    return settings;
}

void DropFractions(Settings& settings) {
    for (Side side : BothSides) {
        settings.Control.PeriodLimit[side] -= settings.Control.PeriodLimit[side] % 60;
        settings.Control.SecondPeriodTime[side] -= settings.Control.SecondPeriodTime[side] % 60;
    }
}
