#pragma once

#include "clock/Correction.h"

#include <optional>

enum class Phase {
    Idle,     // no game: either player may start
    Running,  // one side's time runs
    Paused,   // no timer, times kept
    Fallen,   // a flag has fallen: only a reset goes on
};

// What a command or a tick has done.
enum class ClockEvent {
    Ignored,   // nothing: it cannot be done now
    Ticked,    // a second of the running side
    Changed,   // phase, turn or counts
    FlagFell,  // of the side whose turn it was
    // Seconds of the running side that are marked on its face.
    PeriodBegan,  // the first of its second period
    TimeLow,      // its time has become low
    MarkChanged,  // otherwise its face is marked anew or no longer
    // The players are to be told of these; only an overflow has changed anything, it pauses a running clock.
    TimerNotCreated,
    TimerNotResumed,
    TimerNotKilled,
    Overflow,
    GameNotBegun,
    GameOver,
};

// The clock button that a mouse button pressed on a panel means. Turning the clock swaps the two.
constexpr Side ButtonOfMouse(bool rightButton, bool turnClock) { return rightButton != turnClock ? Black : White; }

enum class BlinkMark { ToMove, Paused };

// What a face is marked with.
enum class FaceMark { None, PeriodBegan, TimeLow };

// The state of a side, as its panel shows it.
enum class PanelLook {
    Resting,  // no game is on, or the other side's flag has fallen
    Running,
    Waiting,  // for the other side, running or paused
    Paused,   // the side to move
    Fallen,
};

// What the players can do with the clock in each phase, and what a window shows of it. No command lets an exception
// out.
class ClockCommands {
  public:
    // The timer must outlive the commands. Initialise must come before any other command.
    explicit ClockCommands(modClock::Timer& timer) : clock(timer) {}

    const modClock::Clock& Clock() const { return clock; }

    Phase CurrentPhase() const;
    bool ClockButtonEnabled(Side side) const;
    bool PauseButtonEnabled(Side side) const;
    bool ReadsResume(Side side) const;  // the side's pause button; otherwise it reads "Pause"
    bool TurnMarksVisible(Side side) const { return LookOf(side) == PanelLook::Running; }
    bool FlagFallen(Side side) const { return fallenSide == side; }
    PanelLook LookOf(Side side) const;
    FaceMark MarkOf(Side side) const;
    bool SetupEnabled() const { return CurrentPhase() == Phase::Idle; }

    // The side whose blinking mark blinks, and what the mark shows when it is on.
    std::optional<Side> BlinkingSide() const;
    BlinkMark BlinkText() const { return blinkText; }

    // Time is low from so many seconds left on; 0: never.
    void WarnAt(int32_t seconds) { lowTime = seconds; }

    // An idle clock with a time control, whatever was before.
    void Initialise(const TimeControl& control);

    ClockEvent Press(Side button);
    ClockEvent PauseOrResume();
    ClockEvent PauseOrResume(Side button);  // by that side's pause button
    ClockEvent PressKeyP();
    ClockEvent PauseIfRunning();  // when the players have ended the game otherwise
    ClockEvent Tick();

    // Possible while the clock is paused, for a correction without a fault.
    bool CanCorrect() const { return CurrentPhase() == Phase::Paused; }
    ClockEvent Correct(const Correction& correction);

    // Stops the timer before the program ends.
    ClockEvent Unload();

    // The clock of a saved game, whatever was before: paused when the game was under way, fallen for the side that was
    // to move when it was over, else idle. The counts must be in step.
    void TakeLoadedGame(const modClock::ClockState& loaded);

  private:
    ClockEvent Pause();
    ClockEvent PauseOnOverflow();
    bool TimeLow(Side side) const;
    void ForgetMarks();

    modClock::Clock clock;
    std::optional<Side> fallenSide;
    BlinkMark blinkText = BlinkMark::ToMove;
    int32_t lowTime = 0;
    std::array<bool, 2> warned{};         // of time that is low, in the present period
    std::array<int, 2> periodMarkLeft{};  // ticks
};
