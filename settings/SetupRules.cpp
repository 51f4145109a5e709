#include "settings/SetupRules.h"

TypeRules RulesOf(int32_t clockType) {
    switch (clockType) {
        case 0:
        case 3: return {.SecondPeriod = false, .Bonus = false, .MoveAmount = false};
        case 1: return {.SecondPeriod = true, .Bonus = false, .MoveAmount = true};
        default: return {.SecondPeriod = true, .Bonus = true, .MoveAmount = true};
    }
}

void DropWhatTypeLacks(Settings& settings) {
    const TypeRules rules = RulesOf(settings.ClockType);
    if (!rules.SecondPeriod) settings.Control.SecondPeriodTime.fill(0);
    if (!rules.Bonus) settings.Control.MoveBonus.fill(0);
}

void DropFractions(Settings& settings) {
    for (Side side : BothSides) {
        settings.Control.PeriodLimit[side] -= settings.Control.PeriodLimit[side] % 60;
        settings.Control.SecondPeriodTime[side] -= settings.Control.SecondPeriodTime[side] % 60;
    }
}

void ChooseClockType(Settings& settings, int32_t type) {
    settings.SetClockType(type);
    DropWhatTypeLacks(settings);
    if (type == 3) settings.Control.CountTimeDown = true;
}

void ChoosePreset(Settings& settings, const Preset& preset) {
    ApplyPreset(preset, settings);
    ChooseClockType(settings, settings.ClockType);
}
