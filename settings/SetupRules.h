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

// Takes the type; HOURGLASS counts down. Times that the type lacks are kept for one that has them.
void ChooseClockType(Settings& settings, int32_t type);

// The settings with 0 for what cannot be set with their type.
Settings WithoutWhatTypeLacks(Settings settings);

// Cuts the periods of a loaded game to the whole minutes that the dialog shows and the settings file stores.
void DropFractions(Settings& settings);
