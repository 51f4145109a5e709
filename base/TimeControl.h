#pragma once

#include <array>
#include <cstdint>

// How much time each side has for a game, and how it is counted. Times are in whole seconds.
struct TimeControl {
    std::array<int32_t, 2> PeriodLimit{};       // first period; counting up, it grows when the second is granted
    std::array<int32_t, 2> SecondPeriodTime{};  // 0: none
    std::array<int32_t, 2> MoveBonus{};         // added at each press; 0: none
    bool CountTimeDown = true;                  // false: the clocks show the time used
    bool SecondPeriodEnabled = false;
    int32_t MovesFirstPeriod = 40;  // at least 1, since counts are divided by it

    bool operator==(const TimeControl&) const = default;
};
