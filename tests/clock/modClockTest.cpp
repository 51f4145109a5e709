#include "clock/modClock.h"

#include "base/RunTimeError.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

struct FakeTimer : modClock::Timer {
    int32_t Handle = 32767;
    int32_t Set() override { return Handle; }
    int32_t Kill(int32_t) override { return 1; }
};

// Times in seconds, the same for both sides. A second period is enabled where it has a time.
struct Setting {
    bool Down;
    int32_t First, Second = 0, Bonus = 0, Moves = 40;
};

// Plays a script and says all that the clock then holds: both faces with the counts, whose turn it is, the timer's
// handle. "press" is of the side that runs, "7s" seven ticks, "handle=1" what the system gives from here on; the other
// words with "=" set what would take long to reach.
std::string Played(const Setting& setting, const std::string& script) {
    FakeTimer timer;
    modClock::Clock clock(timer);
    TimeControl control{
        .CountTimeDown = setting.Down, .SecondPeriodEnabled = setting.Second > 0, .MovesFirstPeriod = setting.Moves};
    control.PeriodLimit.fill(setting.First);
    control.SecondPeriodTime.fill(setting.Second);
    control.MoveBonus.fill(setting.Bonus);
    clock.InitialiseClock(control);
    std::string said;
    std::istringstream words(script);
    for (std::string word; words >> word;) try {
            const size_t sign = word.find('=');
            const int32_t number = sign == std::string::npos ? 0 : std::stoi(word.substr(sign + 1));
            modClock::ClockState state = clock.State();
            const std::string what = word.substr(0, sign);
            if (what == "press") {
                if (clock.PressClock(clock.TurnSide()) != modClock::PressOutcome::Counted) said += ", refused";
            } else if (what == "pause") {
                clock.PauseClock();
            } else if (what == "resume") {
                said += clock.ResumeClock() ? "" : ", refused";
            } else if (what == "handle") {
                timer.Handle = number;
            } else if (word.ends_with('s')) {
                for (int left = std::stoi(word); left > 0; --left)
                    if (clock.ClockTick() == modClock::TickOutcome::FlagFell) said += ", flag";
            } else {
                if (what == "limit") state.Control.PeriodLimit.fill(number);
                if (what == "time") state.PlayerTime[White] = number;
                if (what == "white") state.MoveCount[White] = number;
                if (what == "black") state.MoveCount[Black] = number;
                if (what == "second") {
                    state.Control.SecondPeriodEnabled = true;
                    state.SecondPeriodArmed.fill(true);
                }
                clock.Restore(state);
            }
        } catch (const RunTimeError&) {
            said += ", overflow";
        }
    const modClock::ClockState& state = clock.State();
    std::ostringstream text;
    for (Side side : BothSides)
        text << clock.Face(side) << ' ' << state.MoveCount[side] << (state.SecondPeriodDue[side] ? " due" : "")
             << (state.SecondPeriodArmed[side] ? " armed" : "") << (side == White ? ", " : "; ");
    text << (state.TurnFlag ? "White" : "Black") << (state.GameStarted ? " " : " over ") << state.TimerHandle
         << (state.TimerRunning ? " runs" : "") << said;
    return text.str();
}

}  // namespace

TEST(modClockTest, Games) {
    struct Row {
        const char* Name;
        Setting Control;
        const char *Script, *State;
    };
    const Row rows[] = {
        {"idle, down", {true, 3665}, "", "01:01:05 0, 01:01:05 0; Black over 0"},
        {"idle, up", {false, 300}, "", "00:00:00 0, 00:00:00 0; Black over 0"},
        {"first press", {true, 300}, "press", "00:05:00 1, 00:05:00 0; White 32767 runs"},
        {"turns", {true, 300}, "press 3s press 2s press", "00:04:57 2, 00:04:58 1; White 32767 runs"},
        {"last second", {true, 60}, "press 59s", "00:00:01 1, 00:01:00 0; White 32767 runs"},
        {"flag", {true, 60}, "press 60s", "00:00:00 1, 00:01:00 0; Black over 1, flag"},
        {"Black's flag", {true, 60}, "press press 60s", "00:01:00 1, 00:00:00 1; Black over 1, flag"},
        {"up: the limit", {false, 60}, "press 60s", "00:01:00 1, 00:00:00 0; White 32767 runs"},
        {"up: past it", {false, 60}, "press 61s", "00:01:01 1, 00:00:00 0; Black over 1, flag"},
        {"up: the bonus is time used", {false, 60, 0, 5}, "press 55s", "00:00:55 1, 00:00:00 0; White 32767 runs"},
        {"up: and fells the flag", {false, 60, 0, 5}, "press 56s", "00:00:56 1, 00:00:00 0; Black over 1, flag"},
        {"second period is earned at N moves of Black's, N + 1 of White's",
         {true, 600, 900, 0, 3},
         "press press press press press",
         "00:10:00 3 armed, 00:10:00 2 armed; White 32767 runs"},
        {"Black's N",
         {true, 600, 900, 0, 3},
         "press press press press press press",
         "00:10:00 3 armed, 00:10:00 3 due; Black 32767 runs"},
        {"White's N + 1",
         {true, 600, 900, 0, 3},
         "press press press press press press press",
         "00:10:00 4 due, 00:10:00 3 due; White 32767 runs"},
        {"it takes the place of the flag, with its moves made",
         {true, 60, 120, 0, 1},
         "press press 60s",
         "00:01:00 1 armed, 00:02:00 1; Black 32767 runs"},
        {"a second period of one second",
         {true, 60, 1, 0, 1},
         "second=0 press press 60s",
         "00:01:00 1 due, 00:00:01 1; Black 32767 runs"},
        {"once", {true, 60, 120, 0, 1}, "press press 180s", "00:01:00 1 armed, 00:00:00 1; Black over 1, flag"},
        {"up: the limit grows",
         {false, 60, 120, 0, 1},
         "press press 61s",
         "00:00:00 1 armed, 00:01:01 1; Black 32767 runs"},
        {"up: once", {false, 60, 120, 0, 1}, "press press 181s", "00:00:00 1 armed, 00:03:01 1; Black over 1, flag"},
        {"more time left than the second period earns it, at a side's first move",
         {true, 600, 300},
         "press",
         "00:10:00 1 due, 00:10:00 0 armed; White 32767 runs"},
        {"as much does not", {true, 300, 300}, "press", "00:05:00 1 armed, 00:05:00 0 armed; White 32767 runs"},
        {"by time once, then by moves",
         {true, 600, 300, 0, 9},
         "press 600s press 1s press",
         "00:05:00 2, 00:09:59 1 due; White 32767 runs"},
        {"a second period of no time is none, counting down",
         {true, 60, 0, 0, 1},
         "press second=1 resume press 60s",
         "00:01:00 1 armed, 00:00:00 1; Black over 1, flag"},
        {"and counting up",
         {false, 60, 0, 0, 1},
         "press second=1 resume press 1s press press 60s",
         "00:00:00 2 armed, 00:01:01 2 due; Black over 1, flag"},
        {"bonus: none at the first press",
         {true, 60, 60, 5},
         "press",
         "00:01:00 1 armed, 00:01:00 0 armed; White 32767 runs"},
        {"bonus of the side that pressed",
         {true, 60, 60, 5},
         "press press",
         "00:01:05 1 armed, 00:01:00 1 armed; Black 32767 runs"},
        {"up: bonus", {false, 60, 60, 5}, "press press press", "00:00:05 2 armed, 00:00:05 1 armed; White 32767 runs"},
        {"counts out of step stop it",
         {true, 60},
         "press white=3 black=4 resume 1s",
         "00:01:00 3, 00:01:00 4; White 32767 runs"},
        {"and by two", {true, 60}, "press white=5 black=3 resume 1s", "00:01:00 5, 00:01:00 3; White 32767 runs"},
        {"pause", {true, 60}, "press 7s pause", "00:00:53 1, 00:01:00 0; White 1"},
        {"resume", {true, 60}, "press 7s pause resume 1s", "00:00:52 1, 00:01:00 0; White 32767 runs"},
        {"resume refused", {true, 60}, "press pause handle=0 resume", "00:01:00 1, 00:01:00 0; White 0, refused"},
        {"a resume takes any handle",
         {true, 60},
         "press pause handle=1 resume",
         "00:01:00 1, 00:01:00 0; White 1 runs"},
        {"with a handle of 1 a press adds no bonus",
         {true, 60, 0, 5},
         "press 7s pause handle=1 resume press",
         "00:00:53 1, 00:01:00 1; Black 1 runs"},
        {"with one of 2 it does", {true, 60, 0, 5}, "handle=2 press press", "00:01:05 1, 00:01:00 1; Black 2 runs"},
        {"taken over, moves leave a handle of 1",
         {true, 60},
         "white=0 black=1",
         "00:00:00 0, 00:00:00 1; Black over 1"},
        {"White's too", {true, 60}, "white=1", "00:00:00 1, 00:00:00 0; Black over 1"},
        {"no move leaves none", {true, 60}, "white=0", "00:01:00 0, 00:01:00 0; Black over 0"},
        {"a start wants more than 1", {true, 60}, "handle=1 press", "00:01:00 0, 00:01:00 0; Black over 0, refused"},
        {"2 will do", {true, 60}, "handle=2 press", "00:01:00 1, 00:01:00 0; White 2 runs"},
        {"overflow by the bonus",
         {true, 60, 0, 5},
         "press time=2147483645 resume press",
         "596523:14:05 1, 00:01:00 0; White 32767 runs, overflow"},
        {"overflow of the count",
         {true, 60},
         "press white=2147483647 black=2147483647 resume press",
         "00:01:00 2147483647, 00:01:00 2147483647; White 32767 runs, overflow"},
        {"overflow of the time used with the bonus",
         {false, 60, 0, 5},
         "press limit=2147483647 time=2147483642 resume 1s",
         "596523:14:02 1, 00:00:00 0; White 32767 runs, overflow"},
        {"overflow of the limit",
         {false, 60, 5, 0, 1},
         "press press press press limit=2147483646 time=2147483646 resume press 1s",
         "596523:14:06 3 due, 00:00:00 2 due; White 32767 runs, overflow"},
    };
    for (const Row& row : rows) EXPECT_EQ(Played(row.Control, row.Script), row.State) << row.Name;
}
