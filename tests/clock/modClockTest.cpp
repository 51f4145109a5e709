#include "clock/modClock.h"

#include "base/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr int32_t Most = std::numeric_limits<int32_t>::max();

struct RecordingHost : modClock::ClockHost {
    int32_t HandleToGive = 32767;
    int32_t KillResult = 1;
    std::vector<Side> Fallen;
    int Timers = 0;

    int32_t SetTimer() override {
        if (HandleToGive > 0) ++Timers;
        return HandleToGive;
    }
    int32_t KillTimer(int32_t) override {
        --Timers;
        return KillResult;
    }
    void FaceChanged(Side) override {}
    void MoveNumbersChanged() override {}
    void FlagFell(Side side) override { Fallen.push_back(side); }
};

TimeControl Control(bool down, int32_t limit, int32_t second = 0, int32_t bonus = 0, int32_t moves = 40) {
    TimeControl control;
    control.CountTimeDown = down;
    control.PeriodLimit.fill(limit);
    control.SecondPeriodTime.fill(second);
    control.MoveBonus.fill(bonus);
    control.SecondPeriodEnabled = second > 0;
    control.MovesFirstPeriod = moves;
    return control;
}

class ClockTest : public testing::Test {
  protected:
    RecordingHost host;
    modClock::Clock clock{host};

    // Begins anew with that control.
    void Set(const TimeControl& control) {
        clock.AbandonGame();
        host.Fallen.clear();
        clock.SetTimeControl(control);
        clock.InitialiseClock();
    }
    void Tick(int times = 1) {
        while (times-- > 0) clock.ClockTick();
    }
    // The press that ends the running side's move.
    void Move() { clock.PressClock(clock.TurnSide()); }
    void Begin() { clock.PressClock(Black); }

    template <typename Edit>
    void Change(Edit change) {
        modClock::ClockState state = clock.State();
        change(state);
        clock.Restore(state);
    }
    const modClock::ClockState& State() const { return clock.State(); }
};

TEST_F(ClockTest, FirstPressStartsSideZeroAndLaterOnesAlternate) {
    Set(Control(true, 300));
    Begin();
    EXPECT_EQ(State().MoveCount, (std::array{1, 0}));
    Tick(3);
    EXPECT_EQ(State().PlayerTime, (std::array{297, 300}));
    Move();
    EXPECT_EQ(State().MoveCount, (std::array{1, 1}));
    Tick(2);
    Move();
    EXPECT_EQ(State().MoveCount, (std::array{2, 1}));
    EXPECT_EQ(State().PlayerTime, (std::array{297, 298}));
    EXPECT_EQ(host.Timers, 1);
}

TEST_F(ClockTest, FlagFallsOnTheTickThatUsesTheTimeUp) {
    struct Row {
        const char* Name;
        TimeControl Control;
        int Ticks;
        const char *Idle, *Face;
    };
    const Row rows[] = {
        {"down", Control(true, 60), 60, "00:01:00", "00:00:00"},
        {"up: first tick past the limit", Control(false, 60), 61, "00:00:00", "00:01:01"},
        {"up: the bonus counts as used", Control(false, 60, 0, 5), 56, "00:00:00", "00:00:56"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        Set(row.Control);
        EXPECT_EQ(clock.Face(White), row.Idle);
        Begin();
        Tick(row.Ticks - 1);
        EXPECT_TRUE(host.Fallen.empty());
        Tick();
        EXPECT_EQ(host.Fallen, std::vector{White});
        EXPECT_EQ(clock.Face(White), row.Face);
        EXPECT_EQ(State().TimerHandle, 1);
        EXPECT_FALSE(State().TimerRunning || State().GameStarted || State().TurnFlag);
    }
    EXPECT_EQ(host.Timers, 0);
}

TEST_F(ClockTest, EarnedSecondPeriodIsLoadedOnceInPlaceOfTheFlagFall) {
    for (const bool down : {true, false}) {
        SCOPED_TRACE(down ? "down" : "up");
        Set(Control(down, 60, 120, 0, 1));
        Begin();
        Move();  // Black's first move of one: earned
        EXPECT_TRUE(State().SecondPeriodDue[Black]);
        Tick(60);
        if (!down) Tick();
        EXPECT_TRUE(host.Fallen.empty());
        EXPECT_FALSE(State().SecondPeriodDue[Black]);
        EXPECT_EQ(down ? State().PlayerTime[Black] : State().Control.PeriodLimit[Black], down ? 120 : 180);
        Tick(120);
        EXPECT_EQ(host.Fallen, std::vector{Black});
    }
}

TEST_F(ClockTest, SecondPeriodOfNoTimeIsNone) {
    Set(Control(true, 60));
    Change([](modClock::ClockState& state) {
        state.Control.SecondPeriodEnabled = true;
        state.SecondPeriodArmed.fill(true);
    });
    Begin();
    EXPECT_TRUE(State().SecondPeriodDue[White]) << "more than no time is left";
    Tick(60);
    EXPECT_EQ(host.Fallen, std::vector{White});
    EXPECT_EQ(State().PlayerTime[White], 0);
}

TEST_F(ClockTest, DivisorsOfTheTwoSidesDifferByOne) {
    Set(Control(true, 600, 900, 0, 3));
    Begin();
    std::vector<std::array<int32_t, 2>> earned;
    for (int press = 1; press < 20; ++press) {
        Change([](modClock::ClockState& state) { state.SecondPeriodDue = {}; });
        Move();
        for (Side side : BothSides) {
            if (State().SecondPeriodDue[side]) earned.push_back({side, State().MoveCount[side]});
        }
    }
    EXPECT_EQ(earned,
              (std::vector<std::array<int32_t, 2>>{{Black, 3}, {White, 4}, {Black, 6}, {White, 8}, {Black, 9}}));
}

TEST_F(ClockTest, LongerFirstPeriodEarnsTheSecondAtTheFirstPressOnce) {
    Set(Control(true, 600, 300));
    EXPECT_EQ(State().SecondPeriodArmed, (std::array{true, true}));
    Begin();
    EXPECT_TRUE(State().SecondPeriodDue[White]);
    EXPECT_FALSE(State().SecondPeriodDue[Black]);
    EXPECT_EQ(State().SecondPeriodArmed, (std::array{false, true}));
    Change([](modClock::ClockState& state) { state.SecondPeriodDue = {}; });
    Move();
    Move();
    EXPECT_FALSE(State().SecondPeriodDue[White]) << "armed once only";

    Set(Control(true, 600));
    EXPECT_EQ(State().SecondPeriodArmed, (std::array{false, false})) << "no second period";
}

TEST_F(ClockTest, BonusGoesToThePressedSideButNotAtTheFirstPress) {
    for (const bool down : {true, false}) {
        SCOPED_TRACE(down ? "down" : "up");
        Set(Control(down, 60, 60, 5));
        Begin();
        const int32_t start = down ? 60 : 0;
        EXPECT_EQ(State().PlayerTime, (std::array{start, start}));
        Move();
        EXPECT_EQ(State().PlayerTime, (std::array{start + 5, start}));
        Move();
        EXPECT_EQ(State().PlayerTime, (std::array{start + 5, start + 5}));
    }
}

TEST_F(ClockTest, CountsOutOfStepStandStill) {
    Set(Control(true, 60));
    Begin();
    Change([](modClock::ClockState& state) { state.MoveCount = {3, 4}; });
    Tick();
    EXPECT_EQ(State().PlayerTime[White], 60);
}

TEST_F(ClockTest, PauseAndResumeKeepTimesAndAskDifferentHandles) {
    Set(Control(true, 60));
    Begin();
    Tick(7);
    clock.PauseClock();
    EXPECT_EQ(State().TimerHandle, 1);
    EXPECT_EQ(host.Timers, 0);
    host.HandleToGive = 0;
    EXPECT_FALSE(clock.ResumeClock());
    EXPECT_FALSE(State().TimerRunning);
    host.HandleToGive = 1;
    EXPECT_TRUE(clock.ResumeClock()) << "a resume takes any handle";
    EXPECT_EQ(clock.Face(White), "00:00:53");

    Set(Control(true, 60));
    EXPECT_EQ(clock.PressClock(Black), modClock::PressOutcome::TimerNotCreated) << "a start wants more than 1";
    EXPECT_TRUE(clock.Untouched());
    EXPECT_FALSE(State().TurnFlag);
    EXPECT_EQ(State().PlayerTime[White], 0);
    EXPECT_EQ(State().TimerHandle, 0);
    host.HandleToGive = 2;
    EXPECT_EQ(clock.PressClock(Black), modClock::PressOutcome::Counted);
}

TEST_F(ClockTest, OverflowIsAnErrorThatChangesNothing) {
    Set(Control(true, 60, 0, 5));
    Begin();
    Change([](modClock::ClockState& state) { state.PlayerTime[White] = Most - 2; });
    EXPECT_THROW(Move(), RunTimeError);
    EXPECT_EQ(State().PlayerTime[White], Most - 2);
    EXPECT_TRUE(State().TurnFlag);

    Change([](modClock::ClockState& state) {
        state.PlayerTime[White] = 0;
        state.MoveCount = {Most, Most};
        state.TurnFlag = false;
    });
    EXPECT_THROW(Move(), RunTimeError) << "move count";

    Change([](modClock::ClockState& state) {
        state.Control.CountTimeDown = false;
        state.MoveCount = {1, 0};
        state.TurnFlag = true;
        state.PlayerTime[White] = Most - 3;
        state.Control.PeriodLimit.fill(Most);
    });
    EXPECT_THROW(Tick(), RunTimeError) << "used time with the bonus";
    EXPECT_EQ(State().PlayerTime[White], Most - 3);
}

}  // namespace
