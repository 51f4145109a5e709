#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

// Pause, Resume, Start, Reset and their messages, by mouse, keys and menus.

namespace {

class CommandTest : public testing::Test {
  protected:
    TestFolder folder;
    ProgramRun run{folder, QuietSettings()};

    bool Focus(int id) { return run.FocusComes(id); }
    // Both sides have pressed once.
    void Begin() {
        ASSERT_TRUE(Focus(cmdClock));
        run.Key(VK_SPACE);
        ASSERT_TRUE(run.Becomes(lblMoveCount, L"1."));
        run.Key(VK_SPACE);
        ASSERT_TRUE(Focus(cmdClock + 1));
    }
};

}  // namespace

TEST_F(CommandTest, KeyPausesAndThePauseButtonResumes) {
    ASSERT_TRUE(Focus(cmdClock));
    run.Key('P');  // idle: nothing
    run.Click(ControlOf(cmdPause, White));
    EXPECT_TRUE(
        run.MessageText().starts_with(L"To begin to a new game, push :: Button, select START from Game Menu [Ctrl+T], "
                                      L"keySPACE from keyboard or, Left  |  Right buttons of the mouse."));
    run.Answer(IDOK);
    Begin();
    run.Key('P');
    ASSERT_TRUE(Focus(cmdPause + 1));
    EXPECT_EQ(run.Text(cmdPause) + run.Text(cmdPause + 1), L"PauseResume");
    EXPECT_TRUE(run.Becomes(lblBlink + 1, L"Pause"));

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
}

TEST_F(CommandTest, ResetAsksOnceAGameHasStarted) {
    const std::wstring question = L"This will Reset the clock. Do you want to continue anyway?";
    Begin();
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
    run.Click(ControlOf(imgFlagUp, White));
    EXPECT_EQ(run.MessageText(), question);
    run.Answer(IDYES);
    EXPECT_TRUE(Focus(cmdClock));
    EXPECT_EQ(run.Text(lblMoveCount) + run.Text(lblMoveCount + 1), L"0.0.");

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
    ASSERT_TRUE(run.Becomes(lblMoveCount, L"1."));
    run.Choose(clock, 1);  // Pause
    ASSERT_TRUE(Focus(cmdPause));
    run.Choose(clock, 1);  // Resume
    ASSERT_TRUE(Focus(cmdClock));
    run.Choose(clock, 0);  // Reset
    run.Answer(IDYES);
    ASSERT_TRUE(run.Becomes(lblMoveCount, L"0."));
    run.Choose(game, 4);  // Exit
    EXPECT_TRUE(run.WaitEnd());
    EXPECT_EQ(run.ExitCode(), 0u);
}
