#include "clock/modClock.h"

#include "base/RunTimeError.h"
#include "base/TimeText.h"

namespace modClock {

bool Clock::Untouched() const {
    return !state.GameStarted && state.MoveCount[White] == 0 && state.MoveCount[Black] == 0;
}

bool ClockState::CountsOutOfStep() const {
    const int64_t lead = int64_t{MoveCount[White]} - MoveCount[Black];
    return lead != 0 && lead != 1;
}

bool ClockState::InSecondPeriod(Side side) const {
    // One that began before its moves were made can be due once more, and a saved game says of neither that it began.
    const bool used = MoveCount[White] > 0 && !SecondPeriodArmed[side] && !SecondPeriodDue[side];
    const bool begun = SecondPeriodBegun[side] || used || MoveCount[side] > Control.MovesFirstPeriod;
    return Control.SecondPeriodEnabled && begun;
}

int64_t ClockState::TimeLeft(Side side) const {
    if (Control.CountTimeDown) return PlayerTime[side];
    return int64_t{Control.PeriodLimit[side]} - Control.MoveBonus[side] - PlayerTime[side];
}

std::string Clock::Face(Side side) const {
    return state.TimeHoursText[side] + ":" + state.TimeMinutesText[side] + ":" + state.TimeSecondsText[side];
}

void Clock::InitialiseClock(const TimeControl& control) {
    StopClockTimer();
    state = {};
    state.Control = control;
    state.SecondPeriodArmed.fill(control.SecondPeriodEnabled);
    for (Side side : BothSides) ShowClock(side);
}

void Clock::Restore(const ClockState& kept) {
    StopClockTimer();
    state = kept;
    state.TimerHandle = kept.MoveCount[White] > 0 || kept.MoveCount[Black] > 0 ? 1 : 0;
    state.TimerRunning = false;
    for (Side side : BothSides) ShowClock(side);
}

void Clock::Correct(const ClockState& corrected) {
    state = corrected;
    for (Side side : BothSides) ShowClock(side);
}

// Splits the side's time and makes its texts. An untouched clock that counts down shows its first period.
void Clock::ShowClock(Side side) {
    const bool showsLimit = state.Control.CountTimeDown && Untouched();
    const int32_t time = showsLimit ? state.Control.PeriodLimit[side] : state.PlayerTime[side];
    state.TimeSeconds[side] = time % 60;
    state.TimeMinutes[side] = time / 60 % 60;
    state.TimeHours[side] = time / 3600;
    state.TimeSecondsText[side] = TwoDigitText(state.TimeSeconds[side]);
    state.TimeMinutesText[side] = TwoDigitText(state.TimeMinutes[side]);
    state.TimeHoursText[side] = TwoDigitText(state.TimeHours[side]);
}

TickOutcome Clock::ClockTick() {
    state.ActiveSide = TurnSide();
    if (state.CountsOutOfStep()) return TickOutcome::OutOfStep;

    const Side side = state.ActiveSide;
    const TickOutcome outcome = state.Control.CountTimeDown ? CountDown(side) : CountUp(side);
    ShowClock(side);
    if (outcome == TickOutcome::FlagFell) FlagFall();
    return outcome;
}

TickOutcome Clock::CountDown(Side side) {
    int32_t& time = state.PlayerTime[side];
    time = CheckedAdd(time, -1);
    const bool granted = time == 0 && state.SecondPeriodDue[side] && state.Control.SecondPeriodEnabled;
    if (granted) {
        time = state.Control.SecondPeriodTime[side];
        state.SecondPeriodDue[side] = false;
        state.SecondPeriodBegun[side] = true;
    }
    // A second period of no time is none: the time must not run on below zero.
    return time == 0 ? TickOutcome::FlagFell : granted ? TickOutcome::PeriodBegan : TickOutcome::Counted;
}

TickOutcome Clock::CountUp(Side side) {
    int32_t& limit = state.Control.PeriodLimit[side];
    const int32_t used = CheckedAdd(state.PlayerTime[side], 1);
    // The bonus counts as time used, deliberately.
    const bool passed = CheckedAdd(state.Control.MoveBonus[side], used) > limit;
    // A second period of no time is none.
    const bool granted = passed && state.SecondPeriodDue[side] && state.Control.SecondPeriodEnabled &&
                         state.Control.SecondPeriodTime[side] > 0;
    if (granted) {
        limit = CheckedAdd(limit, state.Control.SecondPeriodTime[side]);
        state.SecondPeriodDue[side] = false;
        state.SecondPeriodBegun[side] = true;
    }
    state.PlayerTime[side] = used;
    return granted ? TickOutcome::PeriodBegan : passed ? TickOutcome::FlagFell : TickOutcome::Counted;
}

PressOutcome Clock::PressClock(Side button) {
    // A press begins the other side's move, and that is the one counted. The divisors differ by one on purpose.
    const Side counted = Other(button);
    const int32_t divisor =
        counted == Black ? state.Control.MovesFirstPeriod : CheckedAdd(state.Control.MovesFirstPeriod, 1);
    const int32_t moves = CheckedAdd(state.MoveCount[counted], 1);
    const bool ticking = state.TimerHandle > 1;
    const int32_t bonus = ticking ? state.Control.MoveBonus[button] : 0;
    const int32_t time = CheckedAdd(state.PlayerTime[button], bonus);

    const ClockState before = state;
    state.TurnFlag = !state.TurnFlag;
    state.PlayerTime[button] = time;
    if (!ticking && !state.GameStarted) {
        state.GameStarted = true;
        if (state.Control.CountTimeDown) state.PlayerTime = state.Control.PeriodLimit;
        if (!StartClockTimer()) {
            state = before;
            return PressOutcome::TimerNotCreated;
        }
    }
    state.MoveCount[counted] = moves;
    if (EarnsSecondPeriod(counted, moves, divisor)) {
        state.SecondPeriodDue[counted] = true;
        state.SecondPeriodArmed[counted] = false;
    }
    ShowClock(button);
    return PressOutcome::Counted;
}

bool Clock::EarnsSecondPeriod(Side side, int32_t moves, int32_t divisor) const {
    const int32_t second = state.Control.SecondPeriodTime[side];
    const bool byTime = state.PlayerTime[side] > second && state.SecondPeriodArmed[side];
    const bool byMoves = moves % divisor == 0 && second >= 1;
    return byTime || byMoves;
}

void Clock::FlagFall() {
    StopClockTimer();
    state.GameStarted = false;
    state.TurnFlag = false;
}

bool Clock::StartClockTimer() {
    state.TimerHandle = timer.Set();
    state.TimerRunning = state.TimerHandle > 1;
    return state.TimerRunning;
}

void Clock::PauseClock() {
    state.TimerHandle = timer.Kill(state.TimerHandle);
    state.TimerRunning = false;
}

bool Clock::ResumeClock() {
    state.TimerHandle = timer.Set();
    state.TimerRunning = state.TimerHandle != 0;
    return state.TimerRunning;
}

bool Clock::StopClockTimer() {
    if (!state.TimerRunning) return true;
    PauseClock();
    return state.TimerHandle != 0;
}

}  // namespace modClock
