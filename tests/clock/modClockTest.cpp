#include "clock/modClock.h"

#include "base/RunTimeError.h"
#include "tests/base/Rows.h"

namespace {

struct FakeTimer : modClock::Timer {
    int32_t Handle = 32767;
    int32_t Set() override { return Handle; }
    int32_t Kill(int32_t) override { return 1; }
};

// Plays "down 60 120 5 1: press 7s" and says all that the clock then holds: both faces with the counts, whose turn it
// is and whether a game is on, and the timer's handle where it is not the usual one. Before the colon: the direction,
// the first period, the second (enabled where it has a time), the bonus and the moves of the first period. "press" is
// of the side that runs, "7s" seven ticks, "handle=1" what the system gives from here on; the other words with "=" set
// what would take long to reach, and stop the timer.
std::string Played(const std::string& row) {
    FakeTimer timer;
    modClock::Clock clock(timer);
    std::istringstream numbers(row.substr(0, row.find(':')));
    std::string direction;
    int32_t first = 0, second = 0, bonus = 0, moves = 40;
    numbers >> direction >> first >> second >> bonus >> moves;
    TimeControl control{.CountTimeDown = direction == "down",
                        .SecondPeriodEnabled = second > 0,
                        .MovesFirstPeriod = moves > 0 ? moves : 40};
    control.PeriodLimit.fill(first);
    control.SecondPeriodTime.fill(second);
    control.MoveBonus.fill(bonus);
    clock.InitialiseClock(control);
    std::string said;
    for (const std::string& word : Words(row.substr(row.find(':') + 1))) try {
            const size_t sign = word.find('=');
            const int32_t number = sign == std::string::npos ? 0 : std::stoi(word.substr(sign + 1));
            modClock::ClockState state = clock.State();
            const std::string what = word.substr(0, sign);
            if (what == "press" && clock.PressClock(clock.TurnSide()) != modClock::PressOutcome::Counted)
                said += ", refused";
            if (what == "pause") clock.PauseClock();
            if (what == "resume" && !clock.ResumeClock()) said += ", refused";
            for (int left = isdigit(word[0]) ? std::stoi(word) : 0; left > 0; --left)
                if (clock.ClockTick() == modClock::TickOutcome::FlagFell) said += ", flag";
            if (what == "handle") timer.Handle = number;
            if (what == "limit") state.Control.PeriodLimit.fill(number);
            if (what == "time") state.PlayerTime[White] = number;
            if (what == "white") state.MoveCount[White] = number;
            if (what == "black") state.MoveCount[Black] = number;
            if (what == "second") state.Control.SecondPeriodEnabled = true, state.SecondPeriodArmed.fill(true);
            if (sign != std::string::npos && what != "handle") clock.Restore(state);
        } catch (const RunTimeError&) {
            said += ", overflow";
        }
    const modClock::ClockState& state = clock.State();
    std::ostringstream text;
    for (Side side : BothSides)
        text << clock.Face(side) << ' ' << state.MoveCount[side] << (state.SecondPeriodDue[side] ? " due" : "")
             << (state.SecondPeriodArmed[side] ? " armed" : "") << (state.InSecondPeriod(side) ? " second" : "")
             << (side == White ? ", " : "; ");
    text << (state.TurnFlag ? "White" : "Black") << (state.TimerRunning ? " runs" : state.GameStarted ? "" : " over");
    if (state.TimerHandle != 32767) text << ' ' << state.TimerHandle;
    return text.str() + said;
}

}  // namespace

TEST(modClockTest, Games) {
    ExpectRows(Played, R"(
        Idle clocks.
        down 3665: => 01:01:05 0, 01:01:05 0; Black over 0 | up 300: => 00:00:00 0, 00:00:00 0; Black over 0
        Presses, in turns.
        down 300: press => 00:05:00 1, 00:05:00 0; White runs
        down 300: press 3s press 2s press => 00:04:57 2, 00:04:58 1; White runs
        The flag, counting down and up; the bonus counts as time used.
        down 60: press 59s => 00:00:01 1, 00:01:00 0; White runs
        down 60: press 60s => 00:00:00 1, 00:01:00 0; Black over 1, flag
        down 60: press press 60s => 00:01:00 1, 00:00:00 1; Black over 1, flag
        up 60: press 60s => 00:01:00 1, 00:00:00 0; White runs
        up 60: press 61s => 00:01:01 1, 00:00:00 0; Black over 1, flag
        up 60 0 5: press 55s => 00:00:55 1, 00:00:00 0; White runs
        up 60 0 5: press 56s => 00:00:56 1, 00:00:00 0; Black over 1, flag
        The second period is earned at 3 moves of Black's and at 4 of White's.
        down 600 900 0 3: press press press press press => 00:10:00 3 armed, 00:10:00 2 armed; White runs
        down 600 900 0 3: press press press press press press => 00:10:00 3 armed, 00:10:00 3 due; Black runs
        down 600 900 0 3: press press press press press press press => 00:10:00 4 due second, 00:10:00 3 due; White runs
        It takes the place of the flag, once; counting up the limit grows.
        down 60 120 0 1: press press 60s => 00:01:00 1 armed, 00:02:00 1 second; Black runs
        down 60 120 0 1: press press 180s => 00:01:00 1 armed, 00:00:00 1 second; Black over 1, flag
        up 60 120 0 1: press press 61s => 00:00:00 1 armed, 00:01:01 1 second; Black runs
        up 60 120 0 1: press press 181s => 00:00:00 1 armed, 00:03:01 1 second; Black over 1, flag
        More time left than it has earns it too, at a side's first move, once.
        down 600 300: press => 00:10:00 1 due, 00:10:00 0 armed; White runs
        down 300 300: press => 00:05:00 1 armed, 00:05:00 0 armed; White runs
        down 600 300 0 9: press 600s press 1s press => 00:05:00 2 second, 00:09:59 1 due; White runs
        It is the second one from there on, though the moves of the first earn it once more.
        down 60 30 0 3: press press 60s press press press press => 00:01:00 3 due, 00:00:30 3 due second; Black runs
        down 60 30 0 3: press press 60s press press press press 30s => 00:01:00 3 due, 00:00:30 3 second; Black runs
        One of no time is none, one of a second is one.
        down 60 0 0 1: press second=1 resume press 60s => 00:01:00 1 armed, 00:00:00 1 second; Black over 1, flag
        up 60 0 0 1: press second=1 resume press 1s press press 60s => 00:00:00 2 armed second, 00:01:01 2 due second; Black over 1, flag
        up 60 1 0 1: press press 61s => 00:00:00 1 armed, 00:01:01 1 second; Black runs
        The bonus is the presser's, in both directions, and there is none at the first press.
        down 60 60 5: press => 00:01:00 1 armed, 00:01:00 0 armed; White runs
        down 60 60 5: press press => 00:01:05 1 armed, 00:01:00 1 armed; Black runs
        up 60 60 5: press press press => 00:00:05 2 armed, 00:00:05 1 armed; White runs
        Counts out of step stop the time.
        down 60: press white=3 black=4 resume 1s => 00:01:00 3, 00:01:00 4; White runs
        down 60: press white=5 black=3 resume 1s => 00:01:00 5, 00:01:00 3; White runs
        Pause and resume. A resume takes any handle, a start one above 1, and so does the bonus.
        down 60: press 7s pause => 00:00:53 1, 00:01:00 0; White 1
        down 60: press 7s pause resume 1s => 00:00:52 1, 00:01:00 0; White runs
        down 60: press pause handle=0 resume => 00:01:00 1, 00:01:00 0; White 0, refused
        down 60: press pause handle=1 resume => 00:01:00 1, 00:01:00 0; White runs 1
        down 60 0 5: press 7s pause handle=1 resume press => 00:00:53 1, 00:01:00 1; Black runs 1
        down 60 0 5: handle=2 press press => 00:01:05 1, 00:01:00 1; Black runs 2
        down 60: handle=1 press => 00:01:00 0, 00:01:00 0; Black over 0, refused
        down 60: handle=2 press => 00:01:00 1, 00:01:00 0; White runs 2
        What is taken over has no timer; moves leave a handle of 1.
        down 60: white=0 black=1 => 00:00:00 0, 00:00:00 1; Black over 1
        down 60: white=1 => 00:00:00 1, 00:00:00 0; Black over 1
        down 60: white=0 => 00:01:00 0, 00:01:00 0; Black over 0
        Sums that do not fit change nothing.
        down 60 0 5: press time=2147483645 resume press => 596523:14:05 1, 00:01:00 0; White runs, overflow
        down 60: press black=2147483647 white=2147483647 resume press => 00:01:00 2147483647, 00:01:00 2147483647; White runs, overflow
        up 60 0 5: press limit=2147483647 time=2147483642 resume 1s => 596523:14:02 1, 00:00:00 0; White runs, overflow
        up 60 5 0 1: press press press press limit=2147483646 time=2147483646 resume press 1s => 596523:14:06 3 due second, 00:00:00 2 due second; White runs, overflow
    )");
}
