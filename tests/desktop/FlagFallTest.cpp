#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

TEST(FlagFallTest, RealFlagFallAfterOneMinuteIsSeenAndHeard) {
    const TestFolder folder;
    Settings settings;
    settings.SetClockType(0);
    settings.Control.PeriodLimit.fill(60);
    settings.SetButtonSound(0);
    settings.SetFlagSound(2);
    ProgramRun run(folder, settings);
    ASSERT_FALSE(CaptureFile().empty()) << "TORVANIX_SOUND_CAPTURE names no file";
    DeleteFileW(CaptureFile().c_str());
    ASSERT_TRUE(run.WaitWindow(L"frmScorlet"));
    run.Click(ControlOf(cmdClock, White));
    EXPECT_TRUE(run.Becomes(lblBlink, L"TO MOVE"));
    EXPECT_TRUE(run.Becomes(lblBlink, L""));
    ASSERT_TRUE(Eventually([&] { return run.Seconds(White) <= 3; }, 70000)) << run.Seconds(White);
    EXPECT_EQ(run.Text(lblFace + 1) + run.Text(lblBlink + 1), L"00:01:00");
    EXPECT_EQ(LoudSamples(), 0u) << "the button sound is NOSOUND";

    ASSERT_TRUE(Eventually([&] { return run.Visible(imgFlagDown); }));
    EXPECT_EQ(run.Text(lblFace), L"00:00:00");
    EXPECT_FALSE(run.Visible(imgFlagUp) || run.Visible(imgFlagDown + 1));
    EXPECT_TRUE(run.Visible(imgFlagUp + 1));
    EXPECT_EQ(run.Lists(), "1. \?\?-\?\?|0-1 / ");
    for (int id = cmdClock; id <= cmdPause + 1; ++id) EXPECT_FALSE(run.Enabled(id)) << id;
    for (int mark = shpTurn; mark < shpTurn + 2 * TurnMarksPerSide; ++mark) EXPECT_FALSE(run.Visible(mark)) << mark;

    EXPECT_TRUE(Eventually([&] { return LoudSamples() > 5000; })) << "loud samples: " << LoudSamples();

    const std::wstring start = L"To continue, first RESET [Ctrl+R] the clock from Clock Menu.";
    for (int way = 0; way < 4; ++way) {
        SCOPED_TRACE(way);
        if (way == 0) run.Key(VK_SPACE);
        if (way == 1) run.Click(ControlOf(cmdClock, White));
        if (way == 2) run.Click(ControlOf(lblFace, Black), true);
        if (way == 3) run.Choose(1, 1);
        EXPECT_EQ(run.MessageText().substr(0, start.size()), start);
        run.Answer(IDOK);
    }
    EXPECT_EQ(run.Text(lblFace), L"00:00:00");

    run.Key('T', true);  // Start: a new game without a question
    EXPECT_TRUE(Eventually([&] { return run.Text(lblMoveCount) == L"1." && run.Visible(imgFlagUp); }));
    EXPECT_FALSE(run.HasMessage());
}
