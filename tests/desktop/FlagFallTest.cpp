#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

TEST(FlagFallTest, RealFlagFallAfterOneMinuteIsSeenAndHeard) {
    const TestFolder folder;
    Settings settings;
    settings.SetClockType(0);
    settings.PeriodLimit.fill(60);
    settings.SetButtonSound(0);
    settings.SetFlagSound(2);
    ProgramRun run(folder, settings);
    ASSERT_FALSE(CaptureFile().empty()) << "TORVANIX_SOUND_CAPTURE names no file";
    DeleteFileW(CaptureFile().c_str());
    const HWND scorlet = run.WaitWindow(L"frmScorlet");
    ASSERT_TRUE(scorlet);
    run.Click(ControlOf(cmdClock, White));
    ASSERT_TRUE(Eventually([&] { return run.Seconds(White) <= 3; }, 70000)) << run.Seconds(White);
    EXPECT_EQ(LoudSamples(), 0u) << "the button sound is NOSOUND";

    ASSERT_TRUE(Eventually([&] { return run.Visible(imgFlagDown); }));
    EXPECT_EQ(run.Text(lblFace), L"00:00:00");
    EXPECT_FALSE(run.Visible(imgFlagUp) || run.Visible(imgFlagDown + 1));
    EXPECT_TRUE(run.Visible(imgFlagUp + 1));
    wchar_t result[16]{};
    SendMessageW(GetDlgItem(scorlet, lstMoves), LB_GETTEXT, 1, reinterpret_cast<LPARAM>(result));
    EXPECT_EQ(std::wstring(result), L"0-1") << "behind the waiting line";
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
