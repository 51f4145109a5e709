#include "settings/SetupRules.h"

#include <utility>

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

void SetupDraft::ChooseClockType(int32_t type) {
    Held.SetClockType(type);
    if (type == Hourglass && !BeforeHourglass)
        BeforeHourglass = std::exchange(Held.Control.CountTimeDown, true);
    else if (type != Hourglass && BeforeHourglass)
        Held.Control.CountTimeDown = *std::exchange(BeforeHourglass, std::nullopt);
}

void SetupDraft::ChooseCountTimeDown(bool down) {
    Held.Control.CountTimeDown = down;
    BeforeHourglass.reset();
}

void SetupDraft::ChoosePreset(const Preset& preset) {
    ApplyPreset(preset, Held);
    BeforeHourglass.reset();
}

Settings SetupDraft::Chosen() const {
    Settings chosen = Held;
    const TypeRules rules = RulesOf(chosen.ClockType);
    if (!rules.SecondPeriod) chosen.Control.SecondPeriodTime.fill(0);
    if (!rules.Bonus) chosen.Control.MoveBonus.fill(0);
    return chosen;
}

void DropFractions(Settings& settings) {
    for (Side side : BothSides) {
        settings.Control.PeriodLimit[side] -= settings.Control.PeriodLimit[side] % 60;
        settings.Control.SecondPeriodTime[side] -= settings.Control.SecondPeriodTime[side] % 60;
    }
}
