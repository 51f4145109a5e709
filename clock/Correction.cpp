#include "clock/Correction.h"

#include "base/TimeText.h"

Correction CorrectionOf(const modClock::ClockState& state) { return {state.PlayerTime, state.MoveCount}; }

std::optional<FaultOfSide> FaultOf(const Correction& correction, const modClock::ClockState& state) {
    const TimeControl& control = state.Control;
    for (Side side : BothSides) {
        const int64_t time = correction.Time[side];
        // A clock that counts up counts the bonus as time used.
        const int64_t used = time + control.MoveBonus[side];
        if (control.CountTimeDown ? time <= 0 : time < 0 || used > control.PeriodLimit[side])
            return FaultOfSide{CorrectionFault::NoTime, side};
        if (correction.MoveCount[side] < (side == White ? 1 : 0)) return FaultOfSide{CorrectionFault::NoMove, side};
    }
    modClock::ClockState corrected;
    corrected.MoveCount = correction.MoveCount;
    if (corrected.CountsOutOfStep()) return FaultOfSide{CorrectionFault::OutOfStep, Black};
    return std::nullopt;
}

void Apply(const Correction& correction, modClock::ClockState& state) {
    for (Side side : BothSides) {
        const int32_t last = state.Control.MovesFirstPeriod;
        if (state.Control.SecondPeriodEnabled && state.MoveCount[side] <= last && correction.MoveCount[side] > last &&
            state.SecondPeriodArmed[side]) {
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
        text += (side == White ? "" : "  ") + ClockText(correction.Time[side]) + " " +
                std::to_string(correction.MoveCount[side]) + ".";
    }
    return text;
}
