#include "settings/SetupRules.h"

TypeRules RulesOf(int32_t clockType) {
    switch (clockType) {
        case 0:
        case 3: return {.secondPeriod = false, .bonus = false, .moveAmount = false};
        case 1: return {.secondPeriod = true, .bonus = false, .moveAmount = true};
        default: return {.secondPeriod = true, .bonus = true, .moveAmount = true};
    }
}

void DropWhatTypeLacks(Settings& settings) {
    const TypeRules rules = RulesOf(settings.ClockType);
    if (!rules.secondPeriod) settings.SecondPeriodTime.fill(0);
    if (!rules.bonus) settings.MoveBonus.fill(0);
}

void ChooseClockType(Settings& settings, int32_t type) {
    settings.SetClockType(type);
    DropWhatTypeLacks(settings);
    if (type == 3) settings.CountTimeDown = true;
}

void ChoosePreset(Settings& settings, const Preset& preset) {
    ApplyPreset(preset, settings);
    ChooseClockType(settings, settings.ClockType);
}
