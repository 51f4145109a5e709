#include "platform/Ansi.h"
#include "recorder/Recorder.h"
#include "tests/desktop/Resources.h"
#include "tests/desktop/Steps.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <random>

// Uses the real program for as long as TORVANIX_SOAK_SECONDS says, 60 without it: presses and moves by messages, as
// fast as the program takes them, the rest by mouse and keys. What the program holds must be at the end what it was
// once everything had been used.

namespace {

// Eventually is too slow for what is done thousands of times.
bool Soon(const std::function<bool()>& condition) {
    const ULONGLONG end = GetTickCount64() + 20000;
    while (!condition()) {
        if (GetTickCount64() > end) return false;
        Sleep(1);
    }
    return true;
}

class SoakTest : public testing::Test {
  protected:
    Steps steps;
    HWND clock = nullptr, scorlet = nullptr;
    std::array<POINT, SquareIndexes> cells{};  // their middles in the Scorlet
    Recorder game;                             // the game on the Scorlet, as it should be
    int halfMoves = 0;                         // of the game on the clock
    int presses = 0, moves = 0;
    std::minstd_rand random{20240309};  // every run does the same

    void Start() {
        // With a sound device a press would take as long as its sound.
        steps.Do("no-sound-device / sh \"cp $BUILD/TORVANIX.chm .\" / start Pgn=1");
        clock = steps.Program().Clock();
    }

    int Random(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }
    Side Turn() const { return halfMoves % 2 == 1 ? White : Black; }
    void ExpectCounts() {
        ProgramRun& run = steps.Program();
        const std::wstring wanted = std::to_wstring((halfMoves + 1) / 2) + L"." + std::to_wstring(halfMoves / 2) + L".";
        ASSERT_TRUE(Soon([&] { return run.Text(lblMoveCount) + run.Text(lblMoveCount + 1) == wanted; }))
            << run.Text(lblMoveCount) + run.Text(lblMoveCount + 1);
    }

    // Clicks are posted, as the system posts the real ones, and counted once the program has worked through them.
    void Press() {
        PostMessageW(steps.Program().Control(ControlOf(cmdClock, halfMoves == 0 ? Black : Turn())), WM_LBUTTONDOWN,
                     MK_LBUTTON, MAKELPARAM(5, 5));
        ++halfMoves;
        ++presses;
    }
    // Most of the time of a press goes into the painting of the window.
    void PressUnseen(int count) {
        ShowWindow(clock, SW_MINIMIZE);
        for (int i = 0; i < count; ++i) Press();
        ExpectCounts();
        ShowWindow(clock, SW_RESTORE);
        steps.Do("front frmClock");
    }

    HWND Cell(int square) const { return GetDlgItem(scorlet, picBoard + square); }
    Piece PieceAt(Square square) const { return game.Position().At(square); }
    void Move() {
        const auto any = [this] {
            return SquareAt(1 + Random(8), 1 + Random(8));
        };
        Square from = any(), to = any();
        while (PieceAt(from) == Piece::Empty) from = any();
        // Another piece of its colour would be picked instead; and few are captured, so that many are left.
        while (to == from ||
               (PieceAt(to) != Piece::Empty && (SideOf(PieceAt(to)) == SideOf(PieceAt(from)) || Random(8) > 0)))
            to = any();
        for (const Square square : {from, to}) {
            const POINT point = cells[static_cast<size_t>(square)];
            PostMessageW(scorlet, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        }
        game.Play(from, to);
        ++moves;
    }
    void ExpectBoard() {
        for (int square = 11; square <= 88; ++square) {
            if (IsSquare(square)) {
                ASSERT_EQ(ToAnsi(TextOf(Cell(square))), PieceCode(PieceAt(static_cast<Square>(square)))) << square;
            }
        }
    }
    void MoveAndPress(int count) {
        for (int i = 0; i < count; ++i) {
            Move();
            Press();
        }
        ExpectCounts();
        ExpectBoard();
    }

    void FindScorlet() {
        steps.Do("shown frmScorlet");
        scorlet = steps.Program().FindWindowNow(L"frmScorlet");
        for (int square = 11; square <= 88; ++square) {
            POINT& point = cells[static_cast<size_t>(square)] = MiddleOf(Cell(square));
            ScreenToClient(scorlet, &point);
        }
    }
    void OpenScorlet() {
        steps.Do("command mnuShowScorlet");
        FindScorlet();
        game.Reset();
    }

    void EditAndDelete() {
        const HWND list = GetDlgItem(scorlet, lstMoves), say = GetDlgItem(scorlet, cmbSay);
        for (const wchar_t* text : {L"nf3", L"qxd5+", L"o-o", L"e4"}) {
            const auto count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
            ASSERT_GT(count, 0);
            SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(Random(count)), 0);
            SendMessageW(scorlet, WM_COMMAND, mnuEditMove, 0);
            ASSERT_TRUE(IsWindowVisible(GetDlgItem(scorlet, txtMove)));
            SendMessageW(GetDlgItem(scorlet, txtMove), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
            SendMessageW(scorlet, WM_COMMAND, cmdOK, 0);
        }
        SendMessageW(scorlet, WM_COMMAND, mnuDeleteLastMove, 0);
        SendMessageW(say, CB_SETCURSEL, 0, 0);
        SendMessageW(scorlet, WM_COMMAND, MAKEWPARAM(cmbSay, CBN_SELENDOK), reinterpret_cast<LPARAM>(say));
    }

    void Load(const std::string& name) {
        steps.Do("by-name mnuLoad cmdLoad " + name + " / hidden frmFiles");
        FindScorlet();
    }
    // Saves once more what has been loaded, and expects the same files.
    void ExpectSame(const std::string& name) {
        steps.Do("by-name mnuSave cmdSave copy / hidden frmFiles");
        steps.Do("sh \"cd SavedGames; for e in bin txt cgn pgn; do cmp copy.$e " + name + ".$e || exit 1; done\"");
    }
    void Reset() {
        steps.Do("command mnuReset / message * Yes / counts 0.0.");
        halfMoves = 0;
    }

    void Resize() {
        for (const HWND window : {clock, scorlet}) {
            RECT before{};
            GetWindowRect(window, &before);
            const auto resize = [&](int width, int height) {
                SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
            };
            for (int i = 0; i < 4; ++i) resize(600 + Random(500), 500 + Random(300));
            resize(before.right - before.left, before.bottom - before.top);
            UpdateWindow(window);
        }
    }

    void HelpViewer() {
        steps.Do("command mnuContents / help opens");
        PostMessageW(FindWindowW(L"HH Parent", nullptr), WM_CLOSE, 0, 0);
        steps.Do("help closed / front frmClock");
    }

    // Begins and ends with an idle clock, in English, without the Scorlet.
    void Cycle() {
        OpenScorlet();
        MoveAndPress(20);
        EditAndDelete();
        const std::string name = "soak" + std::to_string(Random(3));
        steps.Do("command mnuPause / disabled cmdClock.W cmdClock.B / by-name mnuSave cmdSave " + name +
                 " / hidden frmFiles / command mnuPause / silent");
        const int saved = halfMoves;
        const Recorder kept = game;
        MoveAndPress(10);
        Load(name);
        halfMoves = saved;
        game = kept;
        ExpectCounts();
        ExpectBoard();
        ExpectSame(name);
        // The dialog stays, for another one.
        steps.Do("by-name mnuDelete cmdDelete copy / see txtGameName \"\" / close frmFiles / hidden frmFiles");
        steps.Do("command mnuPause / silent / front frmClock / key Space Space / rclick lblFace.W");
        Resize();
        Reset();
        steps.Do("command mnuCloseScorlet / message * Yes / hidden frmScorlet");
        PressUnseen(500);
        Reset();
        for (const char* language : {"1", "0"}) {
            steps.Do(std::string("command mnuSetup / shown frmSetup / choose cmbLanguage ") + language +
                     " / choose cmbClockType 3 / choose cmbClockType 1 / click cmdOK / hidden frmSetup");
            steps.Do("command mnuAbout / close frmAbout / hidden frmAbout / silent");
        }
    }

    Resources Count() {
        // Messages that windows have sent to themselves are through, and programs that were started have ended.
        SendMessageW(clock, WM_NULL, 0, 0);
        Sleep(500);
        return CountResources(steps.Program().Process());
    }
};

// Fewer cycles than the least would not tell a leak.
constexpr int WarmUpCycles = 2, LeastCycles = 5, ViewerEvery = 20;

// The system makes some objects once and late: the font of the first tool tip that is shown, for example.
constexpr size_t LateObjects = 3;
// How the heap lies is not the same twice; and Wine keeps 24 bytes of every static control that was given a font, some
// 250 of them in a cycle.
constexpr size_t HeapSlack = 256 << 10, KeptByWine = 16 << 10;

}  // namespace

TEST_F(SoakTest, HoldsAtTheEndWhatItHeldOnceAllWasUsed) {
    const char* wanted = std::getenv("TORVANIX_SOAK_SECONDS");
    const int seconds = wanted ? std::atoi(wanted) : 60;
    ASSERT_GT(seconds, 0) << wanted;
    const ULONGLONG start = GetTickCount64();
    const auto elapsed = [&] {
        return static_cast<int>((GetTickCount64() - start) / 1000);
    };
    Start();
    HelpViewer();
    for (int i = 0; i < WarmUpCycles && !HasFailure(); ++i) Cycle();
    const Resources before = Count();
    std::cout << elapsed() << " s: " << before.Text() << std::endl;
    int cycles = 0, told = elapsed();
    while (!HasFailure() && (elapsed() < seconds || cycles < LeastCycles)) {
        Cycle();
        if (++cycles % ViewerEvery == 0) HelpViewer();
        if (elapsed() < told + 60) continue;
        told = elapsed();
        std::cout << told << " s: " << Count().Text() << std::endl;
    }
    ASSERT_FALSE(HasFailure()) << "in cycle " << cycles;
    const Resources after = Count();
    std::cout << elapsed() << " s: " << after.Text() << "\n"
              << cycles << " cycles, " << presses << " presses, " << moves << " moves" << std::endl;
    const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    EXPECT_LE(after.Gdi, before.Gdi + LateObjects);
    EXPECT_LE(after.User, before.User + LateObjects);
    EXPECT_LE(after.Handles, before.Handles + LateObjects);
    EXPECT_LE(after.PrivateBytes,
              before.PrivateBytes + HeapSlack + (wine ? static_cast<size_t>(cycles) * KeptByWine : 0));
    EXPECT_LE(after.TemporaryFiles, before.TemporaryFiles);

    OpenScorlet();
    MoveAndPress(60);
    steps.Do("command mnuPause / disabled cmdClock.W cmdClock.B / by-name mnuSave cmdSave end / hidden frmFiles");
    steps.Do("close frmClock / ended 0");
    Start();
    Load("end");
    ExpectSame("end");
    steps.Do("close frmClock / ended 0");
}
