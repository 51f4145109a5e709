#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"
#include "recorder/Notation.h"
#include "recorder/Replay.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <sstream>

// The Scorlet in the real program: games entered by clicks and keys, lists, declarations, promotion, closing.

namespace {

class ScorletTest : public testing::Test {
  protected:
    TestFolder folder;
    ProgramRun run{folder, WithScorlet()};
    HWND scorlet = nullptr;

    static Settings WithScorlet() {
        Settings settings = QuietSettings();
        settings.OpenScorletAtStart = true;
        return settings;
    }

    void SetUp() override {
        ASSERT_TRUE(run.Clock());
        scorlet = run.WaitWindow(L"frmScorlet");
        ASSERT_TRUE(scorlet) << "opens at the start when the settings ask for it";
    }

    HWND Part(int id) const { return GetDlgItem(scorlet, id); }
    HWND Cell(std::string_view square) const { return Part(picBoard + (square[0] - 'a' + 1) * 10 + (square[1] - '0')); }
    std::wstring Code(std::string_view square) const { return TextOf(Cell(square)); }
    bool Shown(int id) const { return IsWindowVisible(Part(id)); }

    // A list's lines joined by "|".
    std::string Lines(Side side) const {
        const HWND list = Part(ControlOf(lstMoves, side));
        std::string lines;
        const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            wchar_t line[64]{};
            SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(line));
            lines += (i > 0 ? "|" : "") + ToAnsi(line);
        }
        return lines;
    }
    std::string Lists() const { return Lines(White) + " / " + Lines(Black); }
    void ExpectLists(const std::string& wanted) {
        EXPECT_TRUE(Eventually([&] { return Lists() == wanted; }, 5000)) << "got " << Lists() << "\nwant " << wanted;
    }

    void Play(std::string_view move) {
        run.Click(Cell(move.substr(0, 2)));
        run.Click(Cell(move.substr(2, 2)));
    }
    void Press() { run.Key(VK_SPACE); }

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
    ExpectLists("1. " + Waiting + " / ");
    std::array<std::string, 2> lists;
    std::string move, word;
    for (int half = 0; moves >> move && written >> word && !IsResult(move); ++half) {
        Play(move);
        ASSERT_TRUE(Eventually([&] { return Code(move.substr(0, 2)) == L"O"; }, 5000)) << move;
        Press();
        const Side side = half % 2 == 0 ? White : Black, next = Other(side);
        lists[side] += (half > 1 ? "|" : "") + (side == White ? std::to_string(half / 2 + 1) + ". " : "") + word;
        const std::string waits = std::to_string(half / 2 + (next == White ? 2 : 1)) + ". " + Waiting;
        ASSERT_TRUE(Eventually([&] { return Lines(next).ends_with(waits); }, 5000)) << Lists();
        ASSERT_EQ(Lines(side), lists[side]);
    }
    EXPECT_TRUE(lists[White].starts_with("1. e4|2. Nf3|3. Bb5|4. Ba4|5. O-O|6. Bxc6|")) << lists[White];
    EXPECT_TRUE(lists[White].ends_with("|49. Ke3")) << lists[White];
    EXPECT_EQ(Code("e3") + Code("c1") + Code("d7"), L"WKBNBB");
    EXPECT_TRUE(Shown(imgCapturedWQ) && Shown(imgCapturedBQ) && Shown(imgCapturedWR + 1));
    EXPECT_EQ(run.Text(lblMoveCount) + run.Text(lblMoveCount + 1), L"49.49.");
    Say(3);
    EXPECT_TRUE(Eventually([&] { return Lines(Black).ends_with("|49. " + Waiting + "|1/2-1/2"); })) << Lists();
    EXPECT_TRUE(Eventually([&] { return run.Text(cmdPause + 1) == L"Resume"; })) << "the game is over";
}

TEST_F(ScorletTest, ClicksPickMoveTheChoiceAndCancel) {
    run.Click(Cell("e4"));  // empty: ignored
    run.Click(Cell("e2"));
    run.Click(Cell("d2"));  // its own colour: picked instead
    run.Click(Cell("d2"));  // cancelled
    run.Click(Cell("d4"));
    Play("d2d3");
    ExpectLists("1. d3 / ");
    Play("e7e5");
    Play("d3d4");
    Play("e5d4");
    EXPECT_TRUE(Eventually([&] { return Shown(imgCapturedWP); }));
    run.Click(Part(imgCapturedWP));  // a captured piece goes back to an empty square
    run.Click(Cell("h3"));
    EXPECT_TRUE(Eventually([&] { return Code("h3") == L"WP" && !Shown(imgCapturedWP); }));
    ExpectLists("1. d3|2. d4 / e5|exd4");
}

TEST_F(ScorletTest, KeysAloneEnterAMove) {
    run.Click(Cell("a4"));  // focus to the board, cursor on an empty square
    for (const int key : {VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_DOWN, VK_DOWN}) run.Key(static_cast<WORD>(key));
    run.Key(VK_RETURN);
    run.Key(VK_ESCAPE);
    run.Key(VK_RETURN);
    run.Key(VK_UP);
    run.Key(VK_UP);
    run.Key(VK_SPACE);  // drops the picked piece
    ExpectLists("1. e4 / ");
    run.Key(VK_SPACE);  // none picked: presses the clock
    EXPECT_TRUE(Eventually([&] { return run.Text(lblMoveCount) == L"1."; }));
    run.Key(VK_SPACE);
    EXPECT_TRUE(Eventually([&] { return run.Text(lblMoveCount + 1) == L"1."; }));
    // The keys still work on the board.
    for (int i = 0; i < 3; ++i) run.Key(VK_UP);
    run.Key(VK_RETURN);
    for (int i = 0; i < 2; ++i) run.Key(VK_DOWN);
    run.Key(VK_RETURN);
    ExpectLists("1. e4 / e5");
}

TEST_F(ScorletTest, DeclarationsPromotionAndResult) {
    for (const char* move : {"a2a4", "b7b5", "a4b5", "a7a6", "b5a6", "h7h6", "a6a7", "h6h5"}) Play(move);
    EXPECT_FALSE(Shown(imgPromotionQ));
    Play("a7b8");
    ASSERT_TRUE(Eventually([&] { return Shown(imgPromotionQ) && Shown(imgPromotionN); }));
    EXPECT_EQ(Code("b8"), L"WP");
    run.Click(Part(imgPromotionR));
    ASSERT_TRUE(Eventually([&] { return Code("b8") == L"WR"; }));
    run.Click(Part(imgPromotionQ));
    ASSERT_TRUE(Eventually([&] { return Code("b8") == L"WQ"; }));
    Say(0);
    ExpectLists("1. a4|2. axb5|3. bxa6|4. a7|5. axb8=Q+ / b5|a6|h6|h5");
    run.Click(run.Control(cmdClock));
    ASSERT_TRUE(Eventually([&] { return run.Enabled(cmdClock) && !run.Enabled(cmdClock + 1); }));
    Say(1);
    ExpectLists("1. a4|2. axb5|3. bxa6|4. a7|5. axb8=Q#|1-0 / b5|a6|h6|h5");
    EXPECT_TRUE(Eventually([&] { return run.Text(cmdPause) == L"Resume"; })) << "the game is over";
    Play("h5h4");
    ExpectLists("1. a4|2. axb5|3. bxa6|4. a7|5. axb8=Q# / b5|a6|h6|h5|h4");
    EXPECT_FALSE(Shown(imgPromotionQ));
}

TEST_F(ScorletTest, LinesAreEditedAndDeleted) {
    for (const char* move : {"e2e4", "e7e5", "g1f3"}) Play(move);
    ExpectLists("1. e4|2. Nf3 / e5");
    run.Click(Part(lstMoves));  // below the lines: nothing chosen there
    run.Key(VK_HOME);
    ListMenu(White, 0);
    ASSERT_TRUE(Eventually([&] { return Shown(txtMove); }));
    EXPECT_EQ(TextOf(Part(txtMove)), L"e4");
    for (WORD key : {WORD{'K'}, WORD{'N'}, WORD{'C'}, WORD{'3'}, WORD{'0'}}) run.Key(key);  // "k" and "0" are refused
    EXPECT_TRUE(Eventually([&] { return TextOf(Part(txtMove)) == L"nc3"; })) << ToAnsi(TextOf(Part(txtMove)));
    run.Key(VK_RETURN);
    ExpectLists("1. Nc3|2. Nf3 / e5");
    EXPECT_FALSE(Shown(txtMove));
    ListMenu(White, 0);
    ASSERT_TRUE(Eventually([&] { return Shown(txtMove); }));
    run.Key('D');
    run.Key(VK_ESCAPE);
    ExpectLists("1. Nc3|2. Nf3 / e5");
    ListMenu(White, 2);
    ExpectLists("1. Nc3 / e5");
    EXPECT_EQ(Code("f3"), L"WN") << "the board stays";
}

TEST_F(ScorletTest, ClosingAsksAndResetClears) {
    Play("e2e4");
    run.Key('R', true);  // the clock's key works here too, and a written move is something to lose
    EXPECT_EQ(run.MessageText(), L"This will Reset the clock. Do you want to continue anyway?");
    EXPECT_FALSE(IsWindowEnabled(scorlet));
    run.Answer(IDYES);
    ExpectLists(" / ");
    EXPECT_EQ(Code("e2"), L"WP");
    Play("e2e4");
    ExpectLists("1. e4 / ");
    PostMessageW(scorlet, WM_CLOSE, 0, 0);
    EXPECT_EQ(run.MessageText(),
              L"Closing SCORLET will reset board position and written moves. Do you want to continue?");
    EXPECT_EQ(TextOf(run.WaitWindow(L"#32770")), L"Close Scorlet Query");
    run.Answer(IDNO);
    ExpectLists("1. e4 / ");
    PostMessageW(scorlet, WM_CLOSE, 0, 0);
    run.Answer(IDYES);
    EXPECT_TRUE(Eventually([&] { return !IsWindow(scorlet); }));
    run.Click(run.Clock());
    PostMessageW(run.Clock(), WM_COMMAND, mnuShowScorlet, 0);
    scorlet = run.WaitWindow(L"frmScorlet");
    ASSERT_TRUE(scorlet);
    ExpectLists(" / ");
    EXPECT_TRUE(run.Close());
}
