#include "clock/ClockCommands.h"

#include "base/RunTimeError.h"

Phase ClockCommands::CurrentPhase() const {
    if (clock.State().TimerRunning) return Phase::Running;
    if (fallenSide) return Phase::Fallen;
    return clock.State().GameStarted ? Phase::Paused : Phase::Idle;
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

void ClockCommands::Initialise() {
    TakeTimeControl(view.ReadTimeControl());
    view.TellReadingProblems();
}

void ClockCommands::TakeTimeControl(const TimeControl& control) {
    clock.AbandonGame();
    clock.SetTimeControl(control);
    clock.InitialiseClock();
    view.PhaseChanged();
}

void ClockCommands::Press(Side button) {
    const Phase phase = CurrentPhase();
    if (phase == Phase::Fallen) return view.Inform(Notice::HowToRestart);
    if (!ClockButtonEnabled(button)) return;
    view.PlayButtonSound();
    // Playing takes time, and a tick that the system let through meanwhile may have ended the game.
    if (CurrentPhase() != phase || clock.State().CountsOutOfStep()) return;

    // Whoever presses first, side 0's clock must run: otherwise the counts would be out of step for good.
    const Side pressed = phase == Phase::Idle ? Black : button;
    try {
        if (clock.PressClock(pressed) == modClock::PressOutcome::TimerNotCreated)
            return view.Inform(Notice::TimerNotCreated);
    } catch (const RunTimeError&) {
        return PauseOnOverflow();
    }
    blinkText = BlinkMark::ToMove;
    view.PhaseChanged();
    view.FocusClockButton(clock.TurnSide());
    view.MoveBegun(phase == Phase::Idle, clock.TurnSide());
}

void ClockCommands::Start() {
    if (CurrentPhase() == Phase::Running && !view.AskReset()) return;
    // A failed timer call leaves no handle, but the game that it stopped is over all the same.
    if (clock.State().TimerHandle >= 1 || CurrentPhase() != Phase::Idle) Reset();
    for (Side side : BothSides) {
        if (ClockButtonEnabled(side)) return Press(side);
    }
}

void ClockCommands::PauseOrResume() {
    switch (CurrentPhase()) {
        case Phase::Idle: return view.Inform(Notice::HowToBegin);
        case Phase::Fallen: return view.Inform(Notice::HowToRestart);
        case Phase::Running: Pause(); return view.FocusPauseButton(clock.TurnSide());
        case Phase::Paused:
            if (!clock.ResumeClock()) return view.Inform(Notice::TimerNotCreatedEnding);
            blinkText = BlinkMark::ToMove;
            view.PhaseChanged();
            return view.FocusClockButton(clock.TurnSide());
    }
}

void ClockCommands::PauseOrResume(Side button) {
    if (CurrentPhase() == Phase::Fallen || PauseButtonEnabled(button)) PauseOrResume();
}

void ClockCommands::PauseIfRunning() {
    if (CurrentPhase() == Phase::Running) Pause();
}

void ClockCommands::PressKeyP() {
    if (clock.State().TimerHandle <= 1) return;
    if (!ClockButtonEnabled(White) && !ClockButtonEnabled(Black)) return;
    for (Side side : BothSides) {
        if (PauseButtonEnabled(side)) return PauseOrResume(side);
    }
}

void ClockCommands::AskedReset() {
    if (view.AskReset()) Reset();
}

void ClockCommands::AskedResetIfStarted() {
    const bool somethingToLose = clock.State().GameStarted || view.MovesWritten();
    if (!somethingToLose || view.AskReset()) Reset();
}

void ClockCommands::Reset() {
    clock.AbandonGame();
    fallenSide.reset();
    blinkText = BlinkMark::ToMove;
    view.ResetRecorder();
    Initialise();
    view.FocusClockButton(White);
}

void ClockCommands::TakeLoadedGame(const modClock::ClockState& loaded) {
    clock.AbandonGame();
    clock.Restore(loaded);
    const bool fallen = !loaded.GameStarted && loaded.MoveCount[White] > 0;
    fallenSide = fallen ? std::optional(loaded.SideByCounts()) : std::nullopt;
    blinkText = CurrentPhase() == Phase::Paused ? BlinkMark::Paused : BlinkMark::ToMove;
    view.PhaseChanged();
}

void ClockCommands::Tick() {
    try {
        clock.ClockTick();
    } catch (const RunTimeError&) {
        PauseOnOverflow();
    }
}

void ClockCommands::Unload() {
    if (!clock.StopClockTimer()) view.Inform(Notice::TimerNotKilled);
}

void ClockCommands::FlagFell(Side side) {
    fallenSide = side;
    view.RecordFlagFall(side);
    view.PhaseChanged();
    view.PlayFlagSound();
}

void ClockCommands::Pause() {
    clock.PauseClock();
    blinkText = BlinkMark::Paused;
    view.PhaseChanged();
}

void ClockCommands::PauseOnOverflow() {
    if (clock.State().TimerRunning) {
        Pause();
        view.FocusPauseButton(clock.TurnSide());
    }
    view.Inform(Notice::Overflow);
}
