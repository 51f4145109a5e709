#include "clock/Correction.h"

#include "base/TimeText.h"

Correction CorrectionOf(const modClock::ClockState& state) { return {state.PlayerTime, state.MoveCount}; }

std::optional<FaultOfSide> FaultOf(const Correction& correction, const modClock::ClockState& state) {
    const TimeControl& control = state.Control;
    for (Side side : BothSides) {
        const int64_t time = correction.Time[side];
        // A clock that counts up counts the bonus as time used, and a second period that is due comes before the flag.
        const int64_t used = time + control.MoveBonus[side];
        const int64_t due = state.SecondPeriodDue[side] ? control.SecondPeriodTime[side] : 0;
        if (control.CountTimeDown ? time <= 0 : time < 0 || used > control.PeriodLimit[side] + due)
            return FaultOfSide{CorrectionFault::NoTime, side};
        const int32_t moves = correction.MoveCount[side];
        if (moves < (side == White ? 1 : 0) || moves > modClock::MostMoves)
            return FaultOfSide{CorrectionFault::NoMove, side};
    }
    modClock::ClockState corrected;
    corrected.MoveCount = correction.MoveCount;
    if (corrected.CountsOutOfStep()) return FaultOfSide{CorrectionFault::OutOfStep, Black};
    return std::nullopt;
}

void Apply(const Correction& correction, modClock::ClockState& state) {
    for (Side side : BothSides) {
        // The numbers at which presses earn it.
        const int64_t earning = int64_t{state.Control.MovesFirstPeriod} + (side == White ? 1 : 0);
        const bool passed = state.MoveCount[side] < earning && correction.MoveCount[side] >= earning;
        if (passed && state.Control.SecondPeriodEnabled && state.Control.SecondPeriodTime[side] > 0) {
            state.SecondPeriodDue[side] = true;
            state.SecondPeriodArmed[side] = false;
        }
    }
    state.PlayerTime = correction.Time;
    state.MoveCount = correction.MoveCount;
    state.ActiveSide = state.SideByCounts();
    state.TurnFlag = state.ActiveSide == White;
}

std::string TextOf(const Correction& correction) {
    std::string text;
    for (Side side : BothSides) {
        text += (side == White ? "" : "  ") + HoursMinutesSecondsText(correction.Time[side]) + " " +
                std::to_string(correction.MoveCount[side]) + ".";
    }
    return text;
}
