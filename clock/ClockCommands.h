#pragma once

#include "clock/modClock.h"

#include <optional>

enum class Phase {
    Idle,     // no game: either player may start
    Running,  // one side's time runs
    Paused,   // no timer, times kept
    Fallen,   // a flag has fallen: only a reset goes on
};

enum class Notice {
    TimerNotKilled,
    TimerNotCreated,
    TimerNotCreatedEnding,
    Overflow,
    HowToBegin,    // refused because no game has begun
    HowToRestart,  // refused because a flag has fallen
};

// The clock button that a mouse button presses when it is used on a panel. Turning the clock swaps the two.
constexpr Side ButtonOfMouse(bool rightButton, bool turnClock) { return rightButton != turnClock ? Black : White; }

enum class BlinkMark { ToMove, Paused };

// What the commands need from the window.
class ClockView {
  public:
    virtual int32_t SetTimer() = 0;                 // handle of a new one-second timer, 0 on failure
    virtual int32_t KillTimer(int32_t handle) = 0;  // 1, or 0 on failure
    virtual void FaceChanged(Side side) = 0;
    virtual void MoveNumbersChanged() = 0;
    virtual void PhaseChanged() = 0;  // buttons, marks, flags and captions must be shown anew
    virtual void FocusClockButton(Side side) = 0;
    virtual void FocusPauseButton(Side side) = 0;
    virtual void PlayButtonSound() = 0;
    virtual void PlayFlagSound() = 0;
    virtual void Inform(Notice notice) = 0;
    virtual bool AskReset() = 0;  // true: the players want the reset
    // The recorder beside the clock, where it is open.
    virtual bool MovesWritten() const = 0;
    virtual void MoveBegun(bool firstPress, Side running) = 0;  // after a press
    virtual void RecordFlagFall(Side side) = 0;
    virtual void ResetRecorder() = 0;
    // The user's time control, read anew. What else the settings say is up to the window.
    virtual TimeControl ReadTimeControl() = 0;
    // Called once the clock is initialised, when the window can say what went wrong in the reading.
    virtual void TellReadingProblems() = 0;

  protected:
    ~ClockView() = default;
};

// What the players can do with the clock and what the window shows of it: the rules of the window, without a window. No
// exception leaves a command.
class ClockCommands final : private modClock::ClockHost {
  public:
    // The view must outlive the commands. Initialise must follow before any other command.
    explicit ClockCommands(ClockView& view) : view(view), clock(*this) {}

    const modClock::Clock& Clock() const { return clock; }

    Phase CurrentPhase() const;
    bool ClockButtonEnabled(Side side) const;
    bool PauseButtonEnabled(Side side) const;
    bool ReadsResume(Side side) const;  // the side's pause button; otherwise it reads "Pause"
    bool TurnMarksVisible(Side side) const { return CurrentPhase() == Phase::Running && side == clock.TurnSide(); }
    bool FlagFallen(Side side) const { return fallenSide == side; }
    bool SetupEnabled() const { return CurrentPhase() == Phase::Idle; }

    // The side whose mark blinks, and what the mark shows while it is on.
    std::optional<Side> BlinkingSide() const;
    BlinkMark BlinkText() const { return blinkText; }

    // Leaves an idle clock with the user's time control.
    void Initialise();

    // Leaves an idle clock with another time control, as if no game had ever been started. Only while SetupEnabled.
    void TakeTimeControl(const TimeControl& control);

    void Press(Side button);
    void Start();
    void PauseOrResume();
    void PauseOrResume(Side button);  // that side's pause button
    void PressKeyP();

    void PauseIfRunning();  // when the players have ended the game in another way

    void AskedReset();           // asks first, as a click on a flag does
    void AskedResetIfStarted();  // asks first when there is a game to lose
    void Reset();

    // Takes the clock of a saved game in place of the present one: paused if the game was under way, with the flag of
    // the side to move fallen if it was over, otherwise idle. The counts must be in step.
    void TakeLoadedGame(const modClock::ClockState& loaded);

    void Tick();

    // Stops the timer before the window is gone.
    void Unload();

  private:
    int32_t SetTimer() override { return view.SetTimer(); }
    int32_t KillTimer(int32_t handle) override { return view.KillTimer(handle); }
    void FaceChanged(Side side) override { view.FaceChanged(side); }
    void MoveNumbersChanged() override { view.MoveNumbersChanged(); }
    void FlagFell(Side side) override;

    void Pause();
    void PauseOnOverflow();

    ClockView& view;
    modClock::Clock clock;
    std::optional<Side> fallenSide;
    BlinkMark blinkText = BlinkMark::ToMove;
};
