#pragma once

#include "base/Side.h"
#include "base/TimeControl.h"

#include <array>
#include <cstdint>
#include <string>

// The clock's arithmetic: two sides, one running at a time, in whole seconds. It reads no time of its own: every call
// of ClockTick counts as exactly one second.
namespace modClock {

// The most moves a side may have counted in a game that is loaded or corrected. The move lists are filled up to the
// counts, which must not ask for more than the memory holds.
inline constexpr int32_t MostMoves = 99'999;

struct ClockState {
    TimeControl Control;

    std::array<int32_t, 2> PlayerTime{};      // seconds left, or used when counting up
    std::array<bool, 2> SecondPeriodDue{};    // earned and not yet begun
    std::array<bool, 2> SecondPeriodArmed{};  // the second period may still be earned by the time rule
    std::array<bool, 2> SecondPeriodBegun{};  // since the game began or was loaded
    std::array<int32_t, 2> MoveCount{};

    // The parts of the time that the face shows.
    std::array<int32_t, 2> TimeHours{}, TimeMinutes{}, TimeSeconds{};
    std::array<std::string, 2> TimeHoursText, TimeMinutesText, TimeSecondsText;

    bool TurnFlag = false;  // true: side 0 runs
    Side ActiveSide = Black;
    bool GameStarted = false;
    int32_t TimerHandle = 0;    // what the last SetTimer or KillTimer returned; a successful kill leaves 1
    bool TimerRunning = false;  // the one-second timer exists

    // True when side 0 has neither as many moves as side 1 nor one more: presses and ticks then change nothing.
    bool CountsOutOfStep() const;

    // Whether the side has used up its first period, or made the moves of it.
    bool InSecondPeriod(Side side) const;
    // Seconds until the side's flag falls or its second period begins.
    int64_t TimeLeft(Side side) const;

    // The side to move according to the counts, which a fallen flag does not change.
    Side SideByCounts() const { return MoveCount[White] > MoveCount[Black] ? White : Black; }
};

// What the clock needs from the program around it.
class Timer {
  public:
    virtual int32_t Set() = 0;                 // handle of a new one-second timer, 0 on failure
    virtual int32_t Kill(int32_t handle) = 0;  // 1, or 0 on failure

  protected:
    ~Timer() = default;
};

enum class PressOutcome { Counted, TimerNotCreated };
enum class TickOutcome { OutOfStep, Counted, PeriodBegan, FlagFell };

class Clock {
  public:
    // The timer must outlive the clock.
    explicit Clock(Timer& timer) : timer(timer) {}

    const ClockState& State() const { return state; }

    // The side whose turn it is according to the turn flag alone.
    Side TurnSide() const { return state.TurnFlag ? White : Black; }

    // True until the first press after a reset.
    bool Untouched() const;

    // The side's face as "HH:MM:SS", of the parts that ShowClock made.
    std::string Face(Side side) const;

    // The start of a game with that time control: no timer, full times, nothing counted or earned.
    void InitialiseClock(const TimeControl& control);

    // Takes a whole state as it is, without its timer. The handle becomes 1 when a move has been counted, else 0.
    void Restore(const ClockState& kept);

    // The whole state as somebody has corrected it, while the clock is paused.
    void Correct(const ClockState& corrected);

    // One second of the running side. Throws RunTimeError(Fault::Overflow), with nothing changed.
    TickOutcome ClockTick();

    // A press of clock button `button`, whose side has moved. The first press of a game starts the timer; if that
    // fails, everything is as it was before the press. Throws RunTimeError(Fault::Overflow), with nothing changed.
    PressOutcome PressClock(Side button);

    // These call the host's timer; false means that the system refused. A start wants a handle above 1, a resume any
    // but 0: the two tests differ on purpose.
    bool StartClockTimer();
    void PauseClock();
    bool ResumeClock();
    bool StopClockTimer();

  private:
    void ShowClock(Side side);
    // A second of the side's time.
    TickOutcome CountDown(Side side);
    TickOutcome CountUp(Side side);
    bool EarnsSecondPeriod(Side side, int32_t moves, int32_t divisor) const;
    void FlagFall();

    Timer& timer;
    ClockState state;
};

}  // namespace modClock
