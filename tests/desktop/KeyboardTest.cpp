#include "tests/desktop/Accessibility.h"
#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"

#include <gtest/gtest.h>

#include <array>

// The real program by the keyboard alone, and what a screen reader gets of it from outside.

namespace {

enum Menu { GameMenu, ClockMenu, ScorletMenu };

class KeyboardTest : public testing::Test {
  protected:
    TestFolder folder;
    ProgramRun run{folder, QuietSettings()};
    HWND scorlet = nullptr;

    bool InFront(HWND window) const {
        return Eventually([&] { return GetForegroundWindow() == window; });
    }
    bool Focus(int id) {
        return Eventually([&] { return run.Focused() == id; });
    }
    void Keys(std::initializer_list<int> keys) const {
        for (const int key : keys) run.Key(static_cast<WORD>(key));
    }
    // From the clock.
    HWND Open(Menu menu, int entry, const wchar_t* name) {
        run.Choose(menu, entry);
        const HWND window = run.WaitWindow(name);
        EXPECT_TRUE(window && InFront(window)) << "no window opens";
        return window;
    }
    void Question(const std::wstring& text) {
        EXPECT_EQ(run.MessageText(), text);
        run.Key(VK_RETURN);
        EXPECT_TRUE(Eventually([&] { return !run.HasMessage(); }));
    }
    std::string Moves() const {
        std::string moves;
        for (Side side : BothSides) {
            const HWND list = GetDlgItem(scorlet, ControlOf(lstMoves, side));
            const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
            for (LRESULT i = 0; i < count; ++i) {
                std::array<wchar_t, 64> line{};
                SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(line.data()));
                moves += ToAnsi(line.data()) + "|";
            }
        }
        return moves;
    }
    void ExpectMoves(const std::string& wanted) {
        EXPECT_TRUE(Eventually([&] { return Moves() == wanted; })) << Moves();
    }
    std::wstring Spoken(int id) const { return SpokenName(GetDlgItem(scorlet, id)); }
};

}  // namespace

TEST_F(KeyboardTest, PlaysRecordsSavesLoadsAndPrints) {
    // Out of the way of every window.
    SetCursorPos(0, 0);
    ASSERT_TRUE(run.Clock());
    ASSERT_TRUE(Focus(cmdClock));
    EXPECT_EQ(SpokenName(run.Control(lblFace + 1)), L"Black, 20 minutes");
    run.Choose(ScorletMenu, 0);
    scorlet = run.WaitWindow(L"frmScorlet");
    ASSERT_TRUE(scorlet);
    run.Key(VK_F6);
    ASSERT_TRUE(Focus(picBoard));
    EXPECT_EQ(Spoken(picBoard), L"Board, e2, white pawn");

    // 1.e4 d5 2.exd5, the clock pressed from the board.
    run.Key(VK_SPACE);
    Keys({VK_RETURN, VK_UP, VK_UP, VK_RETURN});
    ExpectMoves("1. e4|");
    EXPECT_EQ(Spoken(picBoard), L"Board, e4, white pawn, last move");
    run.Key(VK_SPACE);
    ExpectMoves("1. e4|1. \?\?-\?\?|");
    Keys({VK_LEFT, VK_UP, VK_UP, VK_UP, VK_RETURN, VK_DOWN, VK_DOWN, VK_RETURN, VK_SPACE});
    ExpectMoves("1. e4|2. \?\?-\?\?|d5|");
    Keys({VK_RIGHT, VK_DOWN, VK_RETURN, VK_LEFT, VK_UP, VK_RETURN});
    ExpectMoves("1. e4|2. exd5|d5|");
    // A captured piece is put back.
    Keys({VK_INSERT, VK_DOWN, VK_RETURN});
    EXPECT_TRUE(Eventually([&] { return Spoken(picBoard) == L"Board, d4, black pawn"; })) << ToAnsi(Spoken(picBoard));

    // Say, by Tab and the arrows.
    run.Key(VK_TAB);
    ASSERT_TRUE(Focus(cmbSay));
    Keys({VK_DOWN, VK_DOWN, VK_RETURN});
    ExpectMoves("1. e4|2. exd5+|d5|");
    // A list's menu: edit the first move.
    run.Key(VK_TAB);
    ASSERT_TRUE(Focus(lstMoves));
    Keys({VK_HOME, VK_APPS});
    ASSERT_TRUE(Eventually([&] { return run.FindWindowNow(L"#32768") != nullptr; })) << "no menu";
    Keys({VK_DOWN, VK_RETURN});
    ASSERT_TRUE(Focus(txtMove));
    EXPECT_EQ(Spoken(txtMove), L"Edit Move");
    Keys({'D', '4', VK_RETURN});
    ExpectMoves("1. d4|2. exd5+|d5|");

    // F6 goes to the clock and back.
    run.Key(VK_F6);
    ASSERT_TRUE(InFront(run.Clock()));
    ASSERT_TRUE(Focus(cmdClock));
    run.Key('P');
    ASSERT_TRUE(Focus(cmdPause));
    const std::wstring face = run.Text(lblFace);
    const HWND saving = Open(GameMenu, 2, L"frmFiles");
    ASSERT_TRUE(Focus(txtGameName));
    Keys({'K', 'E', 'Y', 'S', VK_RETURN});
    Question(L"The game will be saved as : keys");
    ASSERT_TRUE(Eventually([&] { return !IsWindow(saving) && GetForegroundWindow() == run.Clock(); }));

    run.Key('R', true);
    ASSERT_FALSE(run.MessageText().empty());
    Keys({VK_LEFT, VK_RETURN});  // No is preselected
    ExpectMoves("");
    ASSERT_TRUE(InFront(run.Clock()));
    const HWND loading = Open(GameMenu, 1, L"frmFiles");
    ASSERT_TRUE(Focus(txtGameName));
    run.Key(VK_TAB);
    ASSERT_TRUE(Focus(lstGames));
    run.Key(VK_HOME);
    ASSERT_TRUE(Eventually([&] { return TextOf(GetDlgItem(loading, txtGameName)) == L"keys"; }));
    run.Key(VK_RETURN);
    Question(L"Game keys will be loaded.");
    ExpectMoves("1. d4|2. exd5+|d5|");
    EXPECT_EQ(run.Text(lblFace), face);

    ASSERT_TRUE(InFront(run.Clock()));
    run.Key(VK_F6);
    ASSERT_TRUE(InFront(scorlet));
    ASSERT_TRUE(Focus(picBoard));
    run.Key(VK_F6);
    ASSERT_TRUE(InFront(run.Clock()));
    run.Choose(ScorletMenu, 2);
    HWND editor = nullptr;
    ASSERT_TRUE(Eventually([&] { return (editor = FindWindowW(L"Notepad", nullptr)) != nullptr; }));
    const HWND text = GetWindow(editor, GW_CHILD);
    EXPECT_TRUE(Eventually([&] { return TextOf(text).find(L"2. exd5+") != std::wstring::npos; }))
        << ToAnsi(TextOf(text));
    DWORD process = 0;
    GetWindowThreadProcessId(editor, &process);
    const UniqueFile handle(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process));
    TerminateProcess(handle.get(), 0);
    WaitForSingleObject(handle.get(), 5000);
}

TEST_F(KeyboardTest, SetupAndLanguageByTheKeys) {
    ASSERT_TRUE(run.Clock());
    ASSERT_TRUE(Focus(cmdClock));
    run.Key('S', true);
    const HWND setup = run.WaitWindow(L"frmSetup");
    ASSERT_TRUE(setup && InFront(setup));
    ASSERT_TRUE(Focus(cmbClockType));
    for (const int id : {int{txtName}, txtName + 1, int{hsbFirstPeriod}}) {
        run.Key(VK_TAB);
        ASSERT_TRUE(Focus(id)) << run.Focused();
    }
    const HWND bar = GetDlgItem(setup, hsbFirstPeriod);
    run.Key(VK_RIGHT);
    EXPECT_TRUE(Eventually([&] { return SpokenName(bar) == L"Time for first 40 moves, White, 21 minutes"; }))
        << ToAnsi(SpokenName(bar));
    run.Key(VK_RETURN);
    ASSERT_TRUE(Eventually([&] { return !IsWindow(setup); }));
    EXPECT_TRUE(Eventually([&] { return SpokenName(run.Control(lblFace)) == L"White, 21 minutes"; }));
}
