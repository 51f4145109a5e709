#include "tests/desktop/Accessibility.h"
#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"

#include <gtest/gtest.h>

// The real program by the keyboard alone, and what a screen reader gets of it from outside.

namespace {

enum Menu { GameMenu, ClockMenu, ScorletMenu };

class KeyboardTest : public testing::Test {
  protected:
    TestFolder folder;
    ProgramRun run{folder, QuietSettings()};
    HWND scorlet = nullptr;

    void Keys(std::initializer_list<int> keys) const {
        for (const int key : keys) run.Key(static_cast<WORD>(key));
    }
    // From the clock.
    HWND Open(Menu menu, int entry, const wchar_t* name) {
        run.Choose(menu, entry);
        const HWND window = run.WaitWindow(name);
        EXPECT_TRUE(window && ComesToFront(window)) << "no window opens";
        return window;
    }
    void Question(const std::wstring& text) {
        EXPECT_EQ(run.MessageText(), text);
        run.Key(VK_RETURN);
        EXPECT_TRUE(Eventually([&] { return !run.HasMessage(); }));
    }
    std::wstring Spoken(int id) const { return SpokenName(GetDlgItem(scorlet, id)); }
};

}  // namespace

TEST_F(KeyboardTest, PlaysRecordsSavesLoadsAndPrints) {
    // Out of the way of every window.
    SetCursorPos(0, 0);
    ASSERT_TRUE(run.Clock());
    ASSERT_TRUE(run.FocusComes(cmdClock));
    EXPECT_EQ(SpokenName(run.Control(lblFace + 1)), L"Black, 20 minutes");
    run.Choose(ScorletMenu, 0);
    scorlet = run.WaitWindow(L"frmScorlet");
    ASSERT_TRUE(scorlet);
    run.Key(VK_F6);
    ASSERT_TRUE(run.FocusComes(picBoard));
    EXPECT_EQ(Spoken(picBoard), L"Board, e2, white pawn");

    // 1.e4 d5 2.exd5, the clock pressed from the board.
    run.Key(VK_SPACE);
    // A pick is cancelled; the space bar drops what the next one has picked.
    Keys({VK_RETURN, VK_ESCAPE, VK_RETURN, VK_UP, VK_UP, VK_SPACE});
    run.ExpectLists("1. e4 / ");
    EXPECT_EQ(Spoken(picBoard), L"Board, e4, white pawn, last move");
    run.Key(VK_SPACE);
    run.ExpectLists("1. e4 / 1. \?\?-\?\?");
    Keys({VK_LEFT, VK_UP, VK_UP, VK_UP, VK_RETURN, VK_DOWN, VK_DOWN, VK_RETURN, VK_SPACE});
    run.ExpectLists("1. e4|2. \?\?-\?\? / d5");
    Keys({VK_RIGHT, VK_DOWN, VK_RETURN, VK_LEFT, VK_UP, VK_RETURN});
    run.ExpectLists("1. e4|2. exd5 / d5");
    // A captured piece is put back.
    Keys({VK_INSERT, VK_DOWN, VK_RETURN});
    EXPECT_TRUE(Eventually([&] { return Spoken(picBoard) == L"Board, d4, black pawn"; })) << ToAnsi(Spoken(picBoard));

    // Say, by Tab and the arrows.
    run.Key(VK_TAB);
    ASSERT_TRUE(run.FocusComes(cmbSay));
    Keys({VK_DOWN, VK_DOWN, VK_RETURN});
    run.ExpectLists("1. e4|2. exd5+ / d5");
    // A list's menu: edit the first move.
    run.Key(VK_TAB);
    ASSERT_TRUE(run.FocusComes(lstMoves));
    Keys({VK_HOME, VK_APPS});
    ASSERT_TRUE(Eventually([&] { return run.FindWindowNow(L"#32768") != nullptr; })) << "no menu";
    Keys({VK_DOWN, VK_RETURN});
    ASSERT_TRUE(run.FocusComes(txtMove));
    EXPECT_EQ(Spoken(txtMove), L"Edit Move");
    Keys({'D', '4', VK_RETURN});
    run.ExpectLists("1. d4|2. exd5+ / d5");

    // F6 goes to the clock and back.
    run.Key(VK_F6);
    ASSERT_TRUE(ComesToFront(run.Clock()));
    ASSERT_TRUE(run.FocusComes(cmdClock));
    run.Key('P');
    ASSERT_TRUE(run.FocusComes(cmdPause));
    const std::wstring face = run.Text(lblFace);
    const HWND saving = Open(GameMenu, 2, L"frmFiles");
    ASSERT_TRUE(run.FocusComes(txtGameName));
    Keys({'K', 'E', 'Y', 'S', VK_RETURN});
    Question(L"The game will be saved as : keys");
    ASSERT_TRUE(run.Ended(saving));
    ASSERT_TRUE(ComesToFront(run.Clock()));

    run.Key('R', true);
    ASSERT_FALSE(run.MessageText().empty());
    Keys({VK_LEFT, VK_RETURN});  // No is preselected
    run.ExpectLists(" / ");
    ASSERT_TRUE(ComesToFront(run.Clock()));
    const HWND loading = Open(GameMenu, 1, L"frmFiles");
    ASSERT_TRUE(run.FocusComes(txtGameName));
    run.Key(VK_TAB);
    ASSERT_TRUE(run.FocusComes(lstGames));
    run.Key(VK_HOME);
    ASSERT_TRUE(Becomes(GetDlgItem(loading, txtGameName), L"keys"));
    run.Key(VK_RETURN);
    Question(L"Game keys will be loaded.");
    run.ExpectLists("1. d4|2. exd5+ / d5");
    EXPECT_EQ(run.Text(lblFace), face);

    ASSERT_TRUE(ComesToFront(run.Clock()));
    run.Key(VK_F6);
    ASSERT_TRUE(ComesToFront(scorlet));
    ASSERT_TRUE(run.FocusComes(picBoard));
    run.Key(VK_F6);
    ASSERT_TRUE(ComesToFront(run.Clock()));
    run.Choose(ScorletMenu, 2);
    const HWND text = EditorText();
    EXPECT_TRUE(Eventually([&] { return TextOf(text).find(L"2. exd5+") != std::wstring::npos; }))
        << ToAnsi(TextOf(text));
    EndEditor();
}

TEST_F(KeyboardTest, SetupByTheKeys) {
    ASSERT_TRUE(run.FocusComes(cmdClock));
    run.Key('S', true);
    const HWND setup = run.WaitWindow(L"frmSetup");
    ASSERT_TRUE(setup && ComesToFront(setup));
    ASSERT_TRUE(run.FocusComes(cmbClockType));
    for (const int id : {int{txtName}, txtName + 1, int{hsbFirstPeriod}}) {
        run.Key(VK_TAB);
        ASSERT_TRUE(run.FocusComes(id));
    }
    const HWND bar = GetDlgItem(setup, hsbFirstPeriod);
    run.Key(VK_RIGHT);
    EXPECT_TRUE(Eventually([&] { return SpokenName(bar) == L"Time for first 40 moves, White, 21 minutes"; }))
        << ToAnsi(SpokenName(bar));
    run.Key(VK_RETURN);
    ASSERT_TRUE(run.Ended(setup));
    EXPECT_TRUE(Eventually([&] { return SpokenName(run.Control(lblFace)) == L"White, 21 minutes"; }));
}
