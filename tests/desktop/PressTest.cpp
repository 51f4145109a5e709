#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

// Games of presses in every way that the window offers.

namespace {

// Waits until the move counts on the panels are these, and the side that they tell of has the only enabled clock
// button and the focus.
void ExpectTurn(ProgramRun& run, int white, int black) {
    const Side turn = white > black ? White : Black;
    const auto counts = [&] { return run.Text(lblMoveCount) + run.Text(lblMoveCount + 1); };
    const std::wstring wanted = std::to_wstring(white) + L"." + std::to_wstring(black) + L".";
    const bool reached = Eventually([&] {
        return counts() == wanted && run.Enabled(ControlOf(cmdClock, turn)) &&
               run.Focused() == ControlOf(cmdClock, turn);
    });
    const std::wstring got = counts();
    EXPECT_TRUE(reached) << "got " << std::string(got.begin(), got.end()) << " focus " << run.Focused() << " want "
                         << white << "." << black << ".";
    EXPECT_FALSE(run.Enabled(ControlOf(cmdClock, Other(turn))));
    EXPECT_FALSE(run.Enabled(ControlOf(cmdPause, Other(turn))));
    for (Side side : BothSides) {
        for (int mark = 0; mark < TurnMarksPerSide; ++mark)
            EXPECT_EQ(run.Visible(TurnMark(side, mark)), side == turn) << "turn mark " << mark << " of " << side;
    }
}

}  // namespace

TEST(PressTest, MouseOnEveryPanelLabel) {
    for (const bool turned : {false, true}) {
        SCOPED_TRACE(turned ? "Turn Clock on" : "Turn Clock off");
        const TestFolder folder;
        Settings settings = QuietSettings();
        settings.TurnClock = turned;
        ProgramRun run(folder, settings);
        run.Click(ControlOf(lblFace, White));
        ExpectTurn(run, 1, 0);
        // The mouse button says whose clock button is meant, whatever panel it is pressed on.
        const int labels[] = {lblFace, lblSide, lblPeriod, lblPeriodTime};
        int white = 1, black = 0;
        for (int label : labels) {
            for (Side panel : BothSides) {
                const bool whiteToMove = white > black;
                const bool right = whiteToMove == turned;
                run.Click(ControlOf(label, panel), !right);  // the waiting side's: nothing
                run.Click(ControlOf(label, panel), right);
                ++(whiteToMove ? black : white);
                ExpectTurn(run, white, black);
            }
        }
        EXPECT_TRUE(run.Close()) << "while the clock runs";
        EXPECT_EQ(run.ExitCode(), 0u);
    }
}

TEST(PressTest, ClockButtonsHandPicturesAndSpaceBar) {
    const TestFolder folder;
    ProgramRun run(folder, QuietSettings());
    run.Click(ControlOf(cmdClock, Black));  // either one begins a game
    ExpectTurn(run, 1, 0);
    run.Click(ControlOf(cmdClock, Black));  // disabled
    run.Click(ControlOf(cmdClock, White));
    ExpectTurn(run, 1, 1);
    run.Click(ControlOf(imgHand, White));  // its button is disabled
    run.Click(ControlOf(imgHand, Black));
    ExpectTurn(run, 2, 1);
    for (int move = 0; move < 4; ++move) {
        run.Key(VK_SPACE);
        ExpectTurn(run, 2 + (move + 1) / 2, 1 + (move + 2) / 2);
    }
}

TEST(PressTest, PressCountsWhenTheButtonGoesDownAndAHeldKeyDoesNotRepeat) {
    const TestFolder folder;
    ProgramRun run(folder, QuietSettings());
    MoveMouseTo(run.Control(cmdClock));
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    ExpectTurn(run, 1, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    keybd_event(VK_SPACE, 0x39, 0, 0);
    ExpectTurn(run, 1, 1);
    for (int repeat = 0; repeat < 5; ++repeat) keybd_event(VK_SPACE, 0x39, 0, 0);
    keybd_event(VK_SPACE, 0x39, KEYEVENTF_KEYUP, 0);
    run.Key(VK_SPACE);
    ExpectTurn(run, 2, 1);
}
