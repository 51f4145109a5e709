#pragma once

#include "settings/Settings.h"

#include <optional>
#include <string>
#include <string_view>

// A clock type with its times, as the setup dialog sets them. What does not count is as it is at first: times that the
// type lacks, and the moves of the first period where there is no second one.
struct GameTimes {
    int32_t ClockType = 0;
    TimeControl Control;  // periods in whole minutes

    bool operator==(const GameTimes&) const = default;
};

// The times of one kind for both sides, without a second period, counted down.
GameTimes SimpleTimes(int32_t clockType, int32_t minutes, int32_t bonusSeconds);

GameTimes TimesOf(const Settings& settings);

// Gives the settings the type and its times. What the type lacks stays in the settings, see WithoutWhatTypeLacks.
void TakeTimes(const GameTimes& times, Settings& settings);

// As a person writes them in the file of time controls, "fischer 90 then 30 after 40 plus 30": the type (game, moves,
// fischer or hourglass), the minutes of the first period, then if they are not nothing those of the second with the
// moves before it and the seconds of the bonus, and "up" if the clocks count up. Times that differ are "White/Black".
// The type must be one of the four.
std::string TextOf(const GameTimes& times);
std::optional<GameTimes> TimesOfText(std::string_view text);
