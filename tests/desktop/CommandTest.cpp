#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

// Pause, Resume, Start, Reset and their messages, by mouse, keys and menus.

namespace {

bool Begins(const std::wstring& text, const std::wstring& start) { return text.rfind(start, 0) == 0; }

class CommandTest : public testing::Test {
  protected:
    TestFolder folder;
    ProgramRun run{folder, QuietSettings()};

    bool Focus(int id) {
        return Eventually([&] { return run.Focused() == id; });
    }
    void Begin() {
        ASSERT_TRUE(Focus(cmdClock)) << "focus at the start: " << run.Focused();
        run.Key(VK_SPACE);
        ASSERT_TRUE(Eventually([&] { return run.Text(lblMoveCount) == L"1."; }));
    }
};

}  // namespace

TEST_F(CommandTest, KeyPausesAndThePauseButtonResumes) {
    ASSERT_TRUE(Focus(cmdClock));
    run.Key('P');  // idle: nothing
    Begin();
    run.Key(VK_SPACE);
    ASSERT_TRUE(Focus(cmdClock + 1));
    run.Key('P');
    ASSERT_TRUE(Focus(cmdPause + 1)) << run.Focused();
    EXPECT_EQ(run.Text(cmdPause + 1), L"Resume");
    EXPECT_EQ(run.Text(cmdPause), L"Pause");
    EXPECT_FALSE(run.Enabled(cmdClock) || run.Enabled(cmdClock + 1) || run.Enabled(cmdPause));
    EXPECT_FALSE(run.Visible(TurnMark(Black, 0)));
    EXPECT_TRUE(Eventually([&] { return run.Text(lblBlink + 1) == L"Pause"; }));

    const int paused = run.Seconds(Black);
    run.Click(ControlOf(lblFace, White), true);  // paused: nothing
    Sleep(2200);
    EXPECT_EQ(run.Seconds(Black), paused);
    EXPECT_EQ(run.Text(lblMoveCount + 1), L"1.");

    run.Key(VK_SPACE);  // on the focused pause button
    ASSERT_TRUE(Focus(cmdClock + 1));
    EXPECT_TRUE(Eventually([&] { return run.Seconds(Black) < paused; }));
    run.Click(ControlOf(cmdPause, Black));
    EXPECT_TRUE(Focus(cmdPause + 1));
    run.Key(VK_RETURN);
    EXPECT_TRUE(Focus(cmdClock + 1));
}

TEST_F(CommandTest, PauseWhileIdleTellsHowToBegin) {
    run.Click(ControlOf(cmdPause, White));
    const std::wstring text = run.MessageText();
    EXPECT_TRUE(Begins(text,
                       L"To begin to a new game, push :: Button, select START from Game Menu [Ctrl+T], "
                       L"keySPACE from keyboard or, Left  |  Right buttons of the mouse."));
    run.Answer(IDOK);
    EXPECT_TRUE(Focus(cmdClock));
}

TEST_F(CommandTest, StartAfterAPauseBeginsANewGameWithoutAQuestion) {
    Begin();
    ASSERT_TRUE(Eventually([&] { return run.Seconds(White) < 1200; }));
    run.Key('P');
    ASSERT_TRUE(Focus(cmdPause));
    run.Key('T', true);
    // The reset before the start puts the turn marks out for a moment.
    EXPECT_TRUE(Eventually([&] { return run.Visible(TurnMark(White, 1)) && run.Text(lblFace) == L"00:20:00"; }));
    EXPECT_EQ(run.Text(lblMoveCount), L"1.");
    EXPECT_EQ(run.Focused(), cmdClock);
    EXPECT_TRUE(Eventually([&] { return run.Seconds(White) < 1200; })) << "the new game runs";
}

TEST_F(CommandTest, ResetAsksOnceAGameHasStarted) {
    const std::wstring question = L"This will Reset the clock. Do you want to continue anyway?";
    Begin();
    run.Key(VK_SPACE);
    ASSERT_TRUE(Focus(cmdClock + 1));
    for (const int way : {1, 2, 3}) {
        SCOPED_TRACE(way);
        if (way == 1) run.Click(ControlOf(imgFlagUp, Black));
        if (way == 2) run.Key('R', true);
        if (way == 3) run.Key('T', true);
        EXPECT_EQ(run.MessageText(), question);
        EXPECT_FALSE(IsWindowEnabled(run.Clock()));
        run.Answer(IDNO);
        EXPECT_EQ(run.Text(lblMoveCount) + run.Text(lblMoveCount + 1), L"1.1.");
        EXPECT_TRUE(Focus(cmdClock + 1));
    }
    SetWindowTextW(run.Clock(), L"a loaded game");
    run.Click(ControlOf(imgFlagUp, White));
    EXPECT_EQ(run.MessageText(), question);
    run.Answer(IDYES);
    EXPECT_TRUE(Focus(cmdClock));
    EXPECT_EQ(TextOf(run.Clock()), L"TORVANIX");
    EXPECT_EQ(run.Text(lblMoveCount) + run.Text(lblMoveCount + 1), L"0.0.");
    EXPECT_EQ(run.Text(lblFace + 1), L"00:20:00");
    EXPECT_TRUE(run.Enabled(cmdClock) && run.Enabled(cmdClock + 1));

    run.Key('R', true);  // nothing to lose: no question
    Sleep(300);
    EXPECT_FALSE(run.HasMessage());
}

TEST_F(CommandTest, MenuEntriesByTheArrowKeys) {
    constexpr int game = 0, clock = 1, help = 3;
    ASSERT_TRUE(Focus(cmdClock));
    run.Choose(help, 0);
    EXPECT_EQ(run.MessageText(), L"The help file " + folder.Path() + L"TORVANIX.chm was not found.");
    run.Answer(IDOK);
    ASSERT_TRUE(Focus(cmdClock));

    run.Choose(game, 0);  // Start
    ASSERT_TRUE(Eventually([&] { return run.Text(lblMoveCount) == L"1."; }));
    run.Choose(clock, 1);  // Pause
    ASSERT_TRUE(Focus(cmdPause));
    run.Choose(clock, 1);  // Resume
    ASSERT_TRUE(Focus(cmdClock));
    run.Choose(clock, 0);  // Reset
    run.Answer(IDYES);
    ASSERT_TRUE(Eventually([&] { return run.Text(lblMoveCount) == L"0."; }));
    run.Choose(game, 4);  // Exit
    EXPECT_TRUE(run.WaitEnd());
    EXPECT_EQ(run.ExitCode(), 0u);
}

TEST_F(CommandTest, ClosingEndsTheProgramWhileTheClockRuns) {
    Begin();
    EXPECT_TRUE(run.Close());
    EXPECT_FALSE(run.HasMessage());
    EXPECT_EQ(run.ExitCode(), 0u);
}
