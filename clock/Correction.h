#pragma once

#include "clock/modClock.h"

#include <optional>
#include <string>

// What an arbiter sets on a clock that is paused.
struct Correction {
    std::array<int32_t, 2> Time{};       // seconds, as the faces show them
    std::array<int32_t, 2> MoveCount{};  // the turn follows from these
};

// What a clock that is paused shows.
Correction CorrectionOf(const modClock::ClockState& state);

// Why a clock could not have come to that: the first reason.
enum class CorrectionFault {
    NoTime,     // a time is none, or would have let the side's flag fall
    NoMove,     // White has not begun a move, or a number is below 0 or above MostMoves
    OutOfStep,  // White has neither as many moves as Black nor one more
};
struct FaultOfSide {
    CorrectionFault What;
    Side Where;
};
std::optional<FaultOfSide> FaultOf(const Correction& correction, const modClock::ClockState& state);

// Puts a correction without a fault into a state. A side that is led past the end of its first period has earned the
// second, as by presses; what it has earned or been given stays.
void Apply(const Correction& correction, modClock::ClockState& state);

// "00:12:31 5.  00:10:00 4.", for the log.
std::string TextOf(const Correction& correction);
