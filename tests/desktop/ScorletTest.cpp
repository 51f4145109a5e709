#include "tests/desktop/Desktop.h"

#include "bench/Replay.h"
#include "platform/Ansi.h"
#include "recorder/Notation.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <sstream>

// The Scorlet in the real program: games entered by clicks and keys, lists, declarations, promotion, closing.

namespace {

class ScorletTest : public testing::Test {
  protected:
    TestFolder folder;
    ProgramRun run{folder, QuietSettings(true)};
    HWND scorlet = nullptr;

    void SetUp() override {
        ASSERT_TRUE(run.Clock());
        scorlet = run.WaitWindow(L"frmScorlet");
        ASSERT_TRUE(scorlet) << "opens at the start when the settings ask for it";
    }

    HWND Part(int id) const { return GetDlgItem(scorlet, id); }
    HWND Cell(std::string_view square) const { return Part(picBoard + static_cast<int>(SquareNamed(square))); }
    std::wstring Code(std::string_view square) const { return TextOf(Cell(square)); }
    bool Shown(int id) const { return IsWindowVisible(Part(id)); }

    // Chooses an entry of the Say list by the mouse and the keys.
    void Say(int entry) {
        run.Click(Part(cmbSay));
        ASSERT_TRUE(Eventually([&] { return SendMessageW(Part(cmbSay), CB_GETDROPPEDSTATE, 0, 0) != 0; }));
        for (int i = 0; i <= entry; ++i) run.Key(VK_DOWN);
        run.Key(VK_RETURN);
        EXPECT_TRUE(Eventually([&] { return SendMessageW(Part(cmbSay), CB_GETCURSEL, 0, 0) == CB_ERR; }));
    }

    // Opens a list's menu over its first line and chooses an entry.
    void ListMenu(Side side, int entry) {
        run.Click(Part(ControlOf(lstMoves, side)), true);
        ASSERT_TRUE(Eventually([&] { return run.FindWindowNow(L"#32768") != nullptr; })) << "no menu";
        for (int i = 0; i <= entry; ++i) run.Key(VK_DOWN);
        run.Key(VK_RETURN);
        ASSERT_TRUE(Eventually([&] { return run.FindWindowNow(L"#32768") == nullptr; }));
    }
};

const std::string Waiting = "\?\?-\?\?";

}  // namespace

TEST_F(ScorletTest, RealGameByClicksWithTheClockRunning) {
    std::ifstream file(TEST_DATA "/world-championship-2023-game1.moves");
    std::string line;
    ASSERT_TRUE(std::getline(file, line));
    std::string text;
    ASSERT_TRUE(ReplayLine(line, text));
    std::istringstream moves(line), written(text);
    run.Click(run.Control(cmdClock));
    run.ExpectLists("1. " + Waiting + " / ");
    std::array<std::string, 2> lists;
    std::string move, word;
    for (int half = 0; moves >> move && written >> word && !IsResult(move); ++half) {
        run.Play(move);
        ASSERT_TRUE(Eventually([&] { return Code(move.substr(0, 2)) == L"O"; }, 5000)) << move;
        run.Key(VK_SPACE);
        const Side side = half % 2 == 0 ? White : Black, next = Other(side);
        lists[side] += (half > 1 ? "|" : "") + (side == White ? std::to_string(half / 2 + 1) + ". " : "") + word;
        const std::string waits = std::to_string(half / 2 + (next == White ? 2 : 1)) + ". " + Waiting;
        ASSERT_TRUE(Eventually([&] { return run.Lines(next).ends_with(waits); }, 5000)) << run.Lists();
        ASSERT_EQ(run.Lines(side), lists[side]);
    }
    EXPECT_EQ(Code("e3") + Code("c1") + Code("d7"), L"WKBNBB");
    EXPECT_TRUE(Shown(imgCapturedWQ) && Shown(imgCapturedBQ) && Shown(imgCapturedWR + 1));
    EXPECT_EQ(run.Text(lblMoveCount) + run.Text(lblMoveCount + 1), L"49.49.");
    Say(3);
    EXPECT_TRUE(Eventually([&] { return run.Lines(Black).ends_with("|49. " + Waiting + "|1/2-1/2"); })) << run.Lists();
    EXPECT_TRUE(run.Becomes(cmdPause + 1, L"Resume")) << "the game is over";
}

TEST_F(ScorletTest, ClicksPickMoveTheChoiceAndCancel) {
    run.Click(Cell("e4"));  // empty: ignored
    run.Click(Cell("e2"));
    run.Click(Cell("d2"));  // its own colour: picked instead
    run.Click(Cell("d2"));  // cancelled
    run.Click(Cell("d4"));
    run.Play("d2d3");
    run.ExpectLists("1. d3 / ");
    run.Play("e7e5");
    run.Play("d3d4");
    run.Play("e5d4");
    EXPECT_TRUE(Eventually([&] { return Shown(imgCapturedWP); }));
    run.Click(Part(imgCapturedWP));  // a captured piece goes back to an empty square
    run.Click(Cell("h3"));
    EXPECT_TRUE(Eventually([&] { return Code("h3") == L"WP" && !Shown(imgCapturedWP); }));
    run.ExpectLists("1. d3|2. d4 / e5|exd4");
}

TEST_F(ScorletTest, DeclarationsPromotionAndResult) {
    for (const char* move : {"a2a4", "b7b5", "a4b5", "a7a6", "b5a6", "h7h6", "a6a7", "h6h5"}) run.Play(move);
    EXPECT_FALSE(Shown(imgPromotionQ));
    run.Play("a7b8");
    ASSERT_TRUE(Eventually([&] { return Shown(imgPromotionQ) && Shown(imgPromotionN); }));
    EXPECT_EQ(Code("b8"), L"WP");
    for (const auto& [picture, code] : {std::pair{imgPromotionR, L"WR"}, {imgPromotionQ, L"WQ"}}) {
        run.Click(Part(picture));
        ASSERT_TRUE(Becomes(Cell("b8"), code));
    }
    Say(0);
    run.ExpectLists("1. a4|2. axb5|3. bxa6|4. a7|5. axb8=Q+ / b5|a6|h6|h5");
    run.Click(run.Control(cmdClock));
    ASSERT_TRUE(Eventually([&] { return run.Enabled(cmdClock) && !run.Enabled(cmdClock + 1); }));
    Say(1);
    run.ExpectLists("1. a4|2. axb5|3. bxa6|4. a7|5. axb8=Q#|1-0 / b5|a6|h6|h5");
    EXPECT_TRUE(Becomes(run.Control(cmdPause), L"Resume")) << "the game is over";
    run.Play("h5h4");
    run.ExpectLists("1. a4|2. axb5|3. bxa6|4. a7|5. axb8=Q# / b5|a6|h6|h5|h4");
    EXPECT_FALSE(Shown(imgPromotionQ));
}

TEST_F(ScorletTest, LinesAreEditedAndDeleted) {
    for (const char* move : {"e2e4", "e7e5", "g1f3"}) run.Play(move);
    run.ExpectLists("1. e4|2. Nf3 / e5");
    run.Click(Part(lstMoves));  // below the lines: nothing chosen there
    run.Key(VK_HOME);
    for (const WORD end : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
        ListMenu(White, 0);
        ASSERT_TRUE(Eventually([&] { return Shown(txtMove); }));
        EXPECT_EQ(TextOf(Part(txtMove)), L"e4");
        for (const char key : {'K', 'N', 'C', '3', '0'}) run.Key(static_cast<WORD>(key));
        EXPECT_TRUE(Becomes(Part(txtMove), L"nc3")) << "k and 0 are refused";
        run.Key(end);
        ASSERT_TRUE(Eventually([&] { return !Shown(txtMove); }));
        run.ExpectLists(end == VK_ESCAPE ? "1. e4|2. Nf3 / e5" : "1. Nc3|2. Nf3 / e5");
    }
    ListMenu(White, 2);
    run.ExpectLists("1. Nc3 / e5");
    EXPECT_EQ(Code("f3"), L"WN") << "the board stays";
}

TEST_F(ScorletTest, ClosingAsksAndResetClears) {
    run.Play("e2e4");
    run.Key('R', true);  // the clock's key works here too, and a written move is something to lose
    EXPECT_EQ(run.MessageText(), L"This will Reset the clock. Do you want to continue anyway?");
    EXPECT_FALSE(IsWindowEnabled(scorlet));
    run.Answer(IDYES);
    run.ExpectLists(" / ");
    EXPECT_EQ(Code("e2"), L"WP");
    run.Play("e2e4");
    for (const int answer : {IDNO, IDYES}) {
        run.ExpectLists("1. e4 / ");
        PostMessageW(scorlet, WM_CLOSE, 0, 0);
        EXPECT_EQ(run.MessageText(),
                  L"Closing SCORLET will reset board position and written moves. Do you want to continue?");
        run.Answer(answer);
    }
    EXPECT_TRUE(run.Ended(scorlet));
    run.Click(run.Clock());
    PostMessageW(run.Clock(), WM_COMMAND, mnuShowScorlet, 0);
    scorlet = run.WaitWindow(L"frmScorlet");
    ASSERT_TRUE(scorlet);
    run.ExpectLists(" / ");
    EXPECT_TRUE(run.Close());
}
