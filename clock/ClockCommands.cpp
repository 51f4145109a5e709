#include "clock/ClockCommands.h"

#include "base/RunTimeError.h"

namespace {

constexpr int TicksOfPeriodMark = 5;

}  // namespace

Phase ClockCommands::CurrentPhase() const {
    if (clock.State().TimerRunning) return Phase::Running;
    if (fallenSide) return Phase::Fallen;
    return clock.State().GameStarted ? Phase::Paused : Phase::Idle;
}

PanelLook ClockCommands::LookOf(Side side) const {
    switch (CurrentPhase()) {
        case Phase::Running: return side == clock.TurnSide() ? PanelLook::Running : PanelLook::Waiting;
        case Phase::Paused: return side == clock.TurnSide() ? PanelLook::Paused : PanelLook::Waiting;
        case Phase::Fallen: return FlagFallen(side) ? PanelLook::Fallen : PanelLook::Resting;
        default: return PanelLook::Resting;
    }
}

bool ClockCommands::TimeLow(Side side) const {
    const Phase phase = CurrentPhase();
    const bool underWay = phase == Phase::Running || phase == Phase::Paused;
    return underWay && lowTime > 0 && clock.State().TimeLeft(side) <= lowTime;
}

FaceMark ClockCommands::MarkOf(Side side) const {
    if (periodMarkLeft[side] > 0) return FaceMark::PeriodBegan;
    return TimeLow(side) ? FaceMark::TimeLow : FaceMark::None;
}

// The players have been warned of what is low already.
void ClockCommands::ForgetMarks() {
    for (Side side : BothSides) warned[side] = TimeLow(side);
    periodMarkLeft = {};
}

bool ClockCommands::ClockButtonEnabled(Side side) const {
    const Phase phase = CurrentPhase();
    return phase == Phase::Idle || (phase == Phase::Running && side == clock.TurnSide());
}

bool ClockCommands::PauseButtonEnabled(Side side) const { return ClockButtonEnabled(side) || ReadsResume(side); }

bool ClockCommands::ReadsResume(Side side) const { return CurrentPhase() == Phase::Paused && side == clock.TurnSide(); }

std::optional<Side> ClockCommands::BlinkingSide() const {
    const Phase phase = CurrentPhase();
    if (phase == Phase::Running || phase == Phase::Paused) return clock.TurnSide();
    return std::nullopt;
}

void ClockCommands::Initialise(const TimeControl& control) {
    clock.InitialiseClock(control);
    fallenSide.reset();
    blinkText = BlinkMark::ToMove;
    ForgetMarks();
}

ClockEvent ClockCommands::Press(Side button) {
    const Phase phase = CurrentPhase();
    if (phase == Phase::Fallen) return ClockEvent::GameOver;
    if (!ClockButtonEnabled(button) || clock.State().CountsOutOfStep()) return ClockEvent::Ignored;

    // Whoever presses first, side 0's clock must run: otherwise the counts would be out of step for good.
    const Side pressed = phase == Phase::Idle ? Black : button;
    try {
        if (clock.PressClock(pressed) == modClock::PressOutcome::TimerNotCreated) return ClockEvent::TimerNotCreated;
    } catch (const RunTimeError&) {
        return PauseOnOverflow();
    }
    blinkText = BlinkMark::ToMove;
    return ClockEvent::Changed;
}

ClockEvent ClockCommands::PauseOrResume() {
    switch (CurrentPhase()) {
        case Phase::Idle: return ClockEvent::GameNotBegun;
        case Phase::Fallen: return ClockEvent::GameOver;
        case Phase::Running: return Pause();
        case Phase::Paused: break;
    }
    if (!clock.ResumeClock()) return ClockEvent::TimerNotResumed;
    blinkText = BlinkMark::ToMove;
    return ClockEvent::Changed;
}

ClockEvent ClockCommands::PauseOrResume(Side button) {
    return CurrentPhase() == Phase::Fallen || PauseButtonEnabled(button) ? PauseOrResume() : ClockEvent::Ignored;
}

// A resume may have left a handle of 1, and the key then does nothing; deliberately.
ClockEvent ClockCommands::PressKeyP() { return clock.State().TimerHandle > 1 ? PauseIfRunning() : ClockEvent::Ignored; }

ClockEvent ClockCommands::PauseIfRunning() { return CurrentPhase() == Phase::Running ? Pause() : ClockEvent::Ignored; }

ClockEvent ClockCommands::Tick() {
    const Side side = clock.TurnSide();
    const FaceMark before = MarkOf(side);
    try {
        switch (clock.ClockTick()) {
            case modClock::TickOutcome::OutOfStep: return ClockEvent::Ignored;
            case modClock::TickOutcome::Counted: break;
            case modClock::TickOutcome::PeriodBegan:
                periodMarkLeft[side] = TicksOfPeriodMark;
                warned[side] = TimeLow(side);
                return ClockEvent::PeriodBegan;
            case modClock::TickOutcome::FlagFell:
                fallenSide = clock.State().ActiveSide;
                periodMarkLeft = {};
                return ClockEvent::FlagFell;
        }
    } catch (const RunTimeError&) {
        return PauseOnOverflow();
    }
    if (periodMarkLeft[side] > 0) --periodMarkLeft[side];
    if (TimeLow(side) && !warned[side]) {
        warned[side] = true;
        return ClockEvent::TimeLow;
    }
    return MarkOf(side) == before ? ClockEvent::Ticked : ClockEvent::MarkChanged;
}

ClockEvent ClockCommands::Correct(const Correction& correction) {
    if (!CanCorrect() || FaultOf(correction, clock.State())) return ClockEvent::Ignored;
    modClock::ClockState state = clock.State();
    Apply(correction, state);
    clock.Correct(state);
    ForgetMarks();
    return ClockEvent::Changed;
}

ClockEvent ClockCommands::Unload() { return clock.StopClockTimer() ? ClockEvent::Changed : ClockEvent::TimerNotKilled; }

void ClockCommands::TakeLoadedGame(const modClock::ClockState& loaded) {
    clock.Restore(loaded);
    const bool fallen = !loaded.GameStarted && loaded.MoveCount[White] > 0;
    fallenSide = fallen ? std::optional(loaded.SideByCounts()) : std::nullopt;
    blinkText = CurrentPhase() == Phase::Paused ? BlinkMark::Paused : BlinkMark::ToMove;
    ForgetMarks();
}

ClockEvent ClockCommands::Pause() {
    clock.PauseClock();
    blinkText = BlinkMark::Paused;
    return ClockEvent::Changed;
}

ClockEvent ClockCommands::PauseOnOverflow() {
    if (CurrentPhase() == Phase::Running) Pause();
    return ClockEvent::Overflow;
}
