#include "clock/ClockCommands.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

// A window without a window: keeps what it was asked to do, in order.
struct RecordingView : ClockView {
    TimeControl Control;
    bool TimersWork = true;
    int32_t KillResult = 1;
    bool ResetAnswer = false;
    std::vector<std::string> Done;

    int32_t SetTimer() override { return TimersWork ? 32767 : 0; }
    int32_t KillTimer(int32_t) override { return KillResult; }
    void FaceChanged(Side) override {}
    void MoveNumbersChanged() override {}
    void PhaseChanged() override { Done.push_back("show"); }
    void FocusClockButton(Side side) override { Done.push_back("focus clock " + std::to_string(side)); }
    void FocusPauseButton(Side side) override { Done.push_back("focus pause " + std::to_string(side)); }
    void PlayButtonSound() override { Done.push_back("button sound"); }
    void PlayFlagSound() override { Done.push_back("flag sound"); }
    void Inform(Notice notice) override { Done.push_back("notice " + std::to_string(static_cast<int>(notice))); }
    bool AskReset() override {
        Done.push_back("ask");
        return ResetAnswer;
    }
    TimeControl ReadTimeControl() override {
        Done.push_back("read");
        return Control;
    }
    void TellReadingProblems() override { Done.push_back("tell"); }
    bool Written = false;
    bool MovesWritten() const override { return Written; }
    void MoveBegun(bool, Side) override {}
    void RecordFlagFall(Side side) override { Done.push_back("record " + std::to_string(side)); }
    void ResetRecorder() override {}
};

std::string NoticeOf(Notice notice) { return "notice " + std::to_string(static_cast<int>(notice)); }

class ClockCommandsTest : public testing::Test {
  protected:
    RecordingView view;
    ClockCommands commands{view};

    ClockCommandsTest() {
        view.Control.PeriodLimit.fill(60);
        commands.Initialise();
        view.Done.clear();
    }

    using Steps = std::vector<std::string>;
    Steps Done() { return std::exchange(view.Done, {}); }

    void FallFlag() {
        if (commands.CurrentPhase() == Phase::Idle) commands.Press(White);
        while (commands.CurrentPhase() == Phase::Running) commands.Tick();
        view.Done.clear();
    }

    // Enabled clock buttons, then pause buttons: "10 10" for side 0's pair.
    std::string Enabled() const {
        std::string text;
        for (Side side : BothSides) text += commands.ClockButtonEnabled(side) ? '1' : '0';
        text += ' ';
        for (Side side : BothSides) text += commands.PauseButtonEnabled(side) ? '1' : '0';
        return text;
    }
};

TEST_F(ClockCommandsTest, PauseKeepsTheTurnAndResumeGoesOn) {
    commands.Press(White);
    commands.Press(White);
    view.Done.clear();
    commands.PressKeyP();
    EXPECT_EQ(Done(), (Steps{"show", "focus pause 1"}));
    EXPECT_EQ(Enabled(), "00 01");
    EXPECT_TRUE(commands.ReadsResume(Black));
    EXPECT_FALSE(commands.ReadsResume(White));
    EXPECT_EQ(commands.BlinkingSide(), Black);
    EXPECT_EQ(commands.BlinkText(), BlinkMark::Paused);
    EXPECT_FALSE(commands.TurnMarksVisible(Black));
    commands.PressKeyP();
    commands.Press(Black);
    EXPECT_EQ(Done(), Steps{}) << "paused: neither the key nor a press does anything";

    view.TimersWork = false;
    commands.PauseOrResume();
    EXPECT_EQ(Done(), Steps{NoticeOf(Notice::TimerNotCreatedEnding)});
    EXPECT_EQ(commands.CurrentPhase(), Phase::Paused);
    view.TimersWork = true;
    commands.PauseOrResume(Black);
    EXPECT_EQ(Done(), (Steps{"show", "focus clock 1"}));
    EXPECT_EQ(commands.BlinkText(), BlinkMark::ToMove);
    EXPECT_EQ(Enabled(), "01 01");
}

TEST_F(ClockCommandsTest, FlagFallShowsBeforeItSounds) {
    commands.Press(White);
    for (int second = 0; second < 59; ++second) commands.Tick();
    view.Done.clear();
    commands.Tick();
    EXPECT_EQ(Done(), (Steps{"record 0", "show", "flag sound"}));
    EXPECT_EQ(commands.CurrentPhase(), Phase::Fallen);
    EXPECT_FALSE(commands.SetupEnabled() || commands.BlinkingSide());
}

TEST_F(ClockCommandsTest, StartResetsFirstWhereAStartHasHappened) {
    commands.Start();
    EXPECT_EQ(Done(), (Steps{"button sound", "show", "focus clock 0"})) << "idle";

    commands.Start();
    EXPECT_EQ(Done(), Steps{"ask"}) << "running, answered No";
    EXPECT_EQ(commands.CurrentPhase(), Phase::Running);

    const Steps resetAndStart{"read", "show", "tell", "focus clock 0", "button sound", "show", "focus clock 0"};
    commands.PauseOrResume();
    view.TimersWork = false;
    commands.PauseOrResume();
    view.TimersWork = true;
    view.Done.clear();
    commands.Start();
    EXPECT_EQ(Done(), resetAndStart) << "paused, the timer refused at the resume: without a question";

    FallFlag();
    commands.Start();
    EXPECT_EQ(Done(), resetAndStart) << "fallen: without a question";
    EXPECT_FALSE(commands.FlagFallen(White));
}

TEST_F(ClockCommandsTest, ResetAsksWhereThereIsSomethingToLose) {
    commands.AskedResetIfStarted();
    EXPECT_EQ(Done(), (Steps{"read", "show", "tell", "focus clock 0"})) << "idle";
    commands.AskedReset();
    EXPECT_EQ(Done(), Steps{"ask"}) << "a click on a flag always asks";
    view.Written = true;
    commands.AskedResetIfStarted();
    EXPECT_EQ(Done(), Steps{"ask"}) << "idle, with moves in the Scorlet";
    view.Written = false;
    commands.Press(White);
    commands.Tick();
    view.Done.clear();
    commands.AskedResetIfStarted();
    EXPECT_EQ(Done(), Steps{"ask"});
    EXPECT_EQ(commands.Clock().State().PlayerTime[White], 59) << "No changes nothing";
    EXPECT_EQ(commands.CurrentPhase(), Phase::Running);
    view.ResetAnswer = true;
    commands.AskedResetIfStarted();
    EXPECT_EQ(commands.CurrentPhase(), Phase::Idle);
    EXPECT_EQ(Enabled(), "11 11");
}

TEST_F(ClockCommandsTest, ALoadedGameTakesThePlaceOfWhatStood) {
    modClock::ClockState loaded;
    loaded.Control = view.Control;
    loaded.Control.PeriodLimit.fill(600);
    loaded.PlayerTime = {45, 30};
    loaded.MoveCount = {3, 2};
    loaded.TurnFlag = true;
    loaded.GameStarted = true;
    commands.Press(White);
    commands.TakeLoadedGame(loaded);
    EXPECT_EQ(commands.CurrentPhase(), Phase::Paused);
    loaded.GameStarted = loaded.TurnFlag = false;
    for (const auto& [counts, fallen] : {std::pair{std::array{3, 2}, White}, {std::array{3, 3}, Black}}) {
        loaded.MoveCount = counts;
        commands.TakeLoadedGame(loaded);
        EXPECT_EQ(commands.CurrentPhase(), Phase::Fallen);
        EXPECT_TRUE(commands.FlagFallen(fallen));
        EXPECT_FALSE(commands.FlagFallen(Other(fallen)) || commands.SetupEnabled());
    }

    loaded.MoveCount = {0, 0};
    loaded.PlayerTime = {0, 0};
    commands.TakeLoadedGame(loaded);
    EXPECT_EQ(commands.CurrentPhase(), Phase::Idle);
    commands.Start();
    EXPECT_EQ(commands.Clock().State().PlayerTime[White], 600) << "begins with what was loaded";
}

TEST_F(ClockCommandsTest, TimerFailuresAreTold) {
    view.TimersWork = false;
    commands.Press(White);
    EXPECT_EQ(Done(), (Steps{"button sound", NoticeOf(Notice::TimerNotCreated)}));
    EXPECT_EQ(commands.CurrentPhase(), Phase::Idle);
    view.TimersWork = true;
    commands.Press(White);
    view.Done.clear();
    view.KillResult = 0;
    commands.Unload();
    EXPECT_EQ(Done(), Steps{NoticeOf(Notice::TimerNotKilled)});
}

TEST_F(ClockCommandsTest, OverflowPausesAndTellsOnce) {
    view.Control.CountTimeDown = false;
    view.Control.PeriodLimit.fill(std::numeric_limits<int32_t>::max());
    view.Control.MoveBonus.fill(std::numeric_limits<int32_t>::max());
    commands.Reset();
    commands.Press(White);
    view.Done.clear();
    commands.Tick();
    EXPECT_EQ(Done(), (Steps{"show", "focus pause 0", NoticeOf(Notice::Overflow)})) << "in a tick";
    EXPECT_EQ(commands.CurrentPhase(), Phase::Paused);

    view.Control.CountTimeDown = true;
    commands.Reset();
    commands.Press(White);
    view.Done.clear();
    commands.Press(White);
    EXPECT_EQ(Done(), (Steps{"button sound", "show", "focus pause 0", NoticeOf(Notice::Overflow)})) << "in a press";
}

}  // namespace
