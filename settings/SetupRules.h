#pragma once

#include "settings/Settings.h"

// What the setup dialog lets the players set.

// The range of a time's scroll bar and its steps: minutes for periods, seconds for the bonus.
struct TimeScale {
    int32_t Least, Most, SmallStep, LargeStep;
};
inline constexpr TimeScale FirstPeriodScale{1, 180, 1, 5};
inline constexpr TimeScale SecondPeriodScale{0, 180, 1, 5};
inline constexpr TimeScale BonusScale{0, 3599, 1, 10};

// The list offers the move amounts from 1 to this.
inline constexpr int32_t MostMovesListed = 100;

// What can be set with a clock type: everything, if the number is no type.
struct TypeRules {
    bool SecondPeriod;
    bool Bonus;
    bool MoveAmount;
};
TypeRules RulesOf(int32_t clockType);

// Makes 0 what cannot be set with the type.
void DropWhatTypeLacks(Settings& settings);

// Cuts the periods of a loaded game to the whole minutes that the dialog shows and the settings file stores.
void DropFractions(Settings& settings);

// Takes the type and applies its rules: what cannot be set becomes 0, and HOURGLASS counts down.
void ChooseClockType(Settings& settings, int32_t type);

// Takes a preset, then applies the rules of its type.
void ChoosePreset(Settings& settings, const Preset& preset);
