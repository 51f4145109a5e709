#pragma once

#include "settings/Settings.h"

#include <optional>

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

// What the dialog holds. Times that the chosen type lacks are kept for a type that has them.
struct SetupDraft {
    Settings Held;
    std::optional<bool> BeforeHourglass;  // CountTimeDown, which HOURGLASS has set

    // HOURGLASS counts down; a type that follows has back what was chosen before.
    void ChooseClockType(int32_t type);
    void ChooseCountTimeDown(bool down);
    void ChoosePreset(const Preset& preset);

    // What OK takes: times that the type lacks are 0.
    Settings Chosen() const;
};

// Cuts the periods of a loaded game to the whole minutes that the dialog shows and the settings file stores.
void DropFractions(Settings& settings);
