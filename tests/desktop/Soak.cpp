#include "platform/Ansi.h"
#include "recorder/Recorder.h"
#include "tests/desktop/Desktop.h"
#include "tests/desktop/Resources.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>

// Uses the real program for as long as TORVANIX_SOAK_SECONDS says, 60 without it: most of it by messages, as fast as
// the program takes them, and some by mouse and keys. What the program holds must stand at the end where it stood once
// everything had been used.

namespace {

struct Done {
    int Presses = 0, Moves = 0, Edits = 0, Saves = 0, Loads = 0, Windows = 0;
};

class SoakTest : public testing::Test {
  protected:
    const NoSoundDevice silence;  // a press would take as long as its sound
    TestFolder folder;
    std::optional<ProgramRun> run;
    HWND clock = nullptr, scorlet = nullptr;
    std::array<POINT, SquareIndexes> cells{};  // their middles in the Scorlet
    Recorder game;                             // the game on the Scorlet, as it should be
    Done done;
    int halfMoves = 0;                  // of the game on the clock
    std::minstd_rand random{20240309};  // every run does the same

    void Start() {
        CopyFileW((BuildFolder() + L"TORVANIX.chm").c_str(), (folder.Path() + L"TORVANIX.chm").c_str(), FALSE);
        Settings settings = QuietSettings();
        settings.WritePgn = true;
        run.emplace(folder, settings);
        clock = run->Clock();
        ASSERT_TRUE(clock);
    }

    int Random(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }

    // Eventually is too slow for what is done thousands of times.
    static bool Soon(const std::function<bool()>& condition) {
        const ULONGLONG end = GetTickCount64() + 20000;
        while (!condition()) {
            if (GetTickCount64() > end) return false;
            Sleep(1);
        }
        return true;
    }
    HWND SoonWindow(const wchar_t* className) const {
        HWND window = nullptr;
        EXPECT_TRUE(Soon([&] { return (window = run->FindWindowNow(className)) != nullptr; }))
            << ToAnsi(className) << " does not open";
        return window;
    }
    void Command(int entry) const { PostMessageW(clock, WM_COMMAND, static_cast<WPARAM>(entry), 0); }
    void Answer(int button) const {
        const HWND box = SoonWindow(L"#32770");
        PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
        ASSERT_TRUE(Soon([&] { return !IsWindow(box); }));
    }
    void EndOf(HWND window) {
        ++done.Windows;
        ASSERT_TRUE(Soon([&] { return !IsWindow(window) && IsWindowEnabled(clock); }));
    }

    Side Turn() const { return halfMoves % 2 == 1 ? White : Black; }
    std::wstring Counts() { return run->Text(lblMoveCount) + run->Text(lblMoveCount + 1); }
    std::wstring ExpectedCounts() const {
        return std::to_wstring((halfMoves + 1) / 2) + L"." + std::to_wstring(halfMoves / 2) + L".";
    }
    void ExpectCounts() {
        ASSERT_TRUE(Soon([&] { return Counts() == ExpectedCounts(); })) << ToAnsi(Counts());
    }

    // Clicks are posted, as the system posts the real ones, and counted once the program has worked through them.
    void Press() {
        PostMessageW(run->Control(ControlOf(cmdClock, halfMoves == 0 ? Black : Turn())), WM_LBUTTONDOWN, MK_LBUTTON,
                     MAKELPARAM(5, 5));
        ++halfMoves;
        ++done.Presses;
    }

    // Most of the time of a press goes into the painting of the window.
    void PressUnseen(int count) {
        ShowWindow(clock, SW_MINIMIZE);
        for (int i = 0; i < count; ++i) Press();
        ExpectCounts();
        ShowWindow(clock, SW_RESTORE);
    }

    void FindCells() {
        for (int square = 11; square <= 88; ++square) {
            RECT area{};
            GetWindowRect(GetDlgItem(scorlet, picBoard + square), &area);
            POINT& point =
                cells[static_cast<size_t>(square)] = {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
            ScreenToClient(scorlet, &point);
        }
    }
    Square RandomSquare() { return SquareAt(1 + Random(8), 1 + Random(8)); }
    Piece PieceAt(Square square) const { return game.Position().At(square); }
    void ClickSquare(Square square) const {
        const POINT point = cells[static_cast<size_t>(square)];
        PostMessageW(scorlet, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    }
    void Move() {
        Square from = RandomSquare(), to = RandomSquare();
        while (PieceAt(from) == Piece::Empty) from = RandomSquare();
        // Another piece of its colour would be picked instead; and few are captured, so that many are left.
        while (to == from ||
               (PieceAt(to) != Piece::Empty && (SideOf(PieceAt(to)) == SideOf(PieceAt(from)) || Random(8) > 0)))
            to = RandomSquare();
        ClickSquare(from);
        ClickSquare(to);
        game.Play(from, to);
        ++done.Moves;
    }
    void ExpectBoard() {
        for (int square = 11; square <= 88; ++square) {
            if (!IsSquare(square)) continue;
            const HWND cell = GetDlgItem(scorlet, picBoard + square);
            const std::string wanted(PieceCode(PieceAt(static_cast<Square>(square))));
            ASSERT_EQ(ToAnsi(TextOf(cell)), wanted) << square;
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

    void OpenScorlet() {
        Command(mnuShowScorlet);
        scorlet = SoonWindow(L"frmScorlet");
        game.Reset();
        FindCells();
    }
    void CloseScorlet() {
        Command(mnuCloseScorlet);
        Answer(IDYES);
        EndOf(scorlet);
        scorlet = nullptr;
    }

    void EditAndDelete() {
        const HWND list = GetDlgItem(scorlet, lstMoves);
        for (int i = 0; i < 10; ++i) {
            const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
            ASSERT_GT(count, 0);
            SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(Random(static_cast<int>(count))), 0);
            SendMessageW(scorlet, WM_COMMAND, mnuEditMove, 0);
            ASSERT_TRUE(IsWindowVisible(GetDlgItem(scorlet, txtMove)));
            const wchar_t* const texts[] = {L"nf3", L"qxd5+", L"o-o"};
            SendMessageW(GetDlgItem(scorlet, txtMove), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(texts[i % 3]));
            SendMessageW(scorlet, WM_COMMAND, cmdOK, 0);
            ++done.Edits;
        }
        SendMessageW(scorlet, WM_COMMAND, mnuDeleteLastMove, 0);
        SendMessageW(GetDlgItem(scorlet, cmbSay), CB_SETCURSEL, 0, 0);
        SendMessageW(scorlet, WM_COMMAND, MAKEWPARAM(cmbSay, CBN_SELENDOK),
                     reinterpret_cast<LPARAM>(GetDlgItem(scorlet, cmbSay)));
    }

    void Pause() {
        SendMessageW(clock, WM_COMMAND, mnuPause, 0);
        ASSERT_FALSE(run->Enabled(cmdClock) || run->Enabled(cmdClock + 1));
    }
    void Resume() {
        SendMessageW(clock, WM_COMMAND, mnuPause, 0);
        ASSERT_TRUE(run->Enabled(ControlOf(cmdClock, Turn())));
    }

    // One of the three actions of the file dialog, each with one question before it.
    void Files(int entry, int button, const std::wstring& name) {
        Command(entry);
        const HWND files = SoonWindow(L"frmFiles");
        SendMessageW(GetDlgItem(files, txtGameName), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
        PostMessageW(files, WM_COMMAND, static_cast<WPARAM>(button), 0);
        Answer(IDYES);
        if (entry == mnuDelete) {
            // The dialog stays, for another one.
            ASSERT_TRUE(Soon([&] { return TextOf(GetDlgItem(files, txtGameName)).empty(); }));
            PostMessageW(files, WM_CLOSE, 0, 0);
        }
        EndOf(files);
    }
    void Save(const std::wstring& name) {
        Files(mnuSave, cmdSave, name);
        ++done.Saves;
    }
    void Load(const std::wstring& name) {
        Files(mnuLoad, cmdLoad, name);
        ++done.Loads;
        scorlet = SoonWindow(L"frmScorlet");
        FindCells();
    }
    std::string FilesOf(const std::wstring& name) const {
        std::string all;
        for (const wchar_t* extension : {L".bin", L".txt", L".cgn", L".pgn"}) {
            const std::string bytes = ReadFileText(folder.Path() + L"SavedGames\\" + name + extension);
            EXPECT_FALSE(bytes.empty()) << ToAnsi(name + extension);
            all += bytes + "|";
        }
        return all;
    }

    void Reset() {
        Command(mnuReset);
        Answer(IDYES);
        halfMoves = 0;
        ExpectCounts();
    }

    void Setup(int32_t language, bool accept) {
        Command(mnuSetup);
        const HWND setup = SoonWindow(L"frmSetup");
        SendMessageW(GetDlgItem(setup, cmbLanguage), CB_SETCURSEL, static_cast<WPARAM>(language), 0);
        SendMessageW(setup, WM_COMMAND, MAKEWPARAM(cmbLanguage, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(GetDlgItem(setup, cmbLanguage)));
        for (const int type : {3, 1}) {
            SendMessageW(GetDlgItem(setup, cmbClockType), CB_SETCURSEL, static_cast<WPARAM>(type), 0);
            SendMessageW(setup, WM_COMMAND, MAKEWPARAM(cmbClockType, CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(GetDlgItem(setup, cmbClockType)));
        }
        PostMessageW(setup, WM_COMMAND, accept ? cmdOK : cmdCancel, 0);
        EndOf(setup);
    }
    void Dialogs() {
        for (int i = 0; i < 3; ++i) {
            Setup(i, i % 2 == 0);
            Command(mnuAbout);
            const HWND about = SoonWindow(L"frmAbout");
            PostMessageW(about, WM_CLOSE, 0, 0);
            EndOf(about);
        }
        Setup(1, true);  // English
    }

    void Resize() {
        for (const HWND window : {clock, scorlet}) {
            RECT before{};
            GetWindowRect(window, &before);
            for (int i = 0; i < 4; ++i)
                SetWindowPos(window, nullptr, 0, 0, 600 + Random(500), 500 + Random(300),
                             SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
            SetWindowPos(window, nullptr, before.left, before.top, before.right - before.left,
                         before.bottom - before.top, SWP_NOZORDER | SWP_NOACTIVATE);
            UpdateWindow(window);
        }
    }

    void ByMouseAndKeys() {
        SetForegroundWindow(clock);
        ASSERT_TRUE(Eventually([&] { return GetForegroundWindow() == clock; }));
        for (int i = 0; i < 4; ++i) {
            if (i % 2 == 0)
                run->Click(ControlOf(lblFace, White), Turn() == Black);
            else
                run->Key(VK_SPACE);
            ++halfMoves;
            ++done.Presses;
            ExpectCounts();
        }
    }

    void HelpViewer() {
        Command(mnuContents);
        HWND viewer = nullptr;
        ASSERT_TRUE(Soon([&] { return (viewer = FindWindowW(L"HH Parent", nullptr)) && IsWindowVisible(viewer); }));
        DWORD process = 0;
        GetWindowThreadProcessId(viewer, &process);
        const UniqueFile handle(OpenProcess(SYNCHRONIZE, FALSE, process));
        PostMessageW(viewer, WM_CLOSE, 0, 0);
        EXPECT_EQ(WaitForSingleObject(handle.get(), 20000), WAIT_OBJECT_0);
        ++done.Windows;
    }

    // Begins and ends with an idle clock, in English, without the Scorlet.
    void Cycle() {
        OpenScorlet();
        MoveAndPress(20);
        EditAndDelete();
        Pause();
        const std::wstring name = L"soak" + std::to_wstring(Random(3));
        Save(name);
        Resume();
        const int saved = halfMoves;
        const Recorder kept = game;
        MoveAndPress(10);
        Load(name);
        halfMoves = saved;
        game = kept;
        ExpectCounts();
        ExpectBoard();
        Save(L"copy");
        EXPECT_EQ(FilesOf(L"copy"), FilesOf(name));
        Files(mnuDelete, cmdDelete, L"copy");
        Resume();
        Resize();
        ByMouseAndKeys();
        Reset();
        CloseScorlet();
        PressUnseen(500);
        Reset();
        Dialogs();
        ASSERT_FALSE(run->HasMessage()) << ToAnsi(run->MessageText());
    }

    Resources Count() {
        // Messages that windows have sent to themselves are through, and programs that were started have ended.
        SendMessageW(clock, WM_NULL, 0, 0);
        Sleep(500);
        return CountResources(run->Process());
    }
};

// Fewer cycles than the least would not tell a leak.
constexpr int WarmUpCycles = 3, LeastCycles = 6, ViewerEvery = 20;

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
    const auto elapsed = [&] { return static_cast<int>((GetTickCount64() - start) / 1000); };
    Start();
    HelpViewer();
    for (int i = 0; i < WarmUpCycles && !HasFailure(); ++i) Cycle();
    ASSERT_FALSE(HasFailure());
    const Resources before = Count();
    std::cout << elapsed() << " s: " << before.Text() << std::endl;
    int cycles = 0, told = elapsed();
    while (elapsed() < seconds || cycles < LeastCycles) {
        Cycle();
        if (++cycles % ViewerEvery == 0) HelpViewer();
        ASSERT_FALSE(HasFailure()) << "in cycle " << cycles;
        if (elapsed() >= told + 60) {
            told = elapsed();
            std::cout << told << " s: " << Count().Text() << std::endl;
        }
    }
    const Resources after = Count();
    std::cout << elapsed() << " s: " << after.Text() << "\n"
              << cycles << " cycles, " << done.Presses << " presses, " << done.Moves << " moves, " << done.Edits
              << " edits, " << done.Saves << " saves, " << done.Loads << " loads, " << done.Windows << " windows"
              << std::endl;
    const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    EXPECT_LE(after.Gdi, before.Gdi + LateObjects);
    EXPECT_LE(after.User, before.User + LateObjects);
    EXPECT_LE(after.Handles, before.Handles + LateObjects);
    EXPECT_LE(after.PrivateBytes,
              before.PrivateBytes + HeapSlack + (wine ? static_cast<size_t>(cycles) * KeptByWine : 0));
    EXPECT_LE(after.TemporaryFiles, before.TemporaryFiles);

    OpenScorlet();
    MoveAndPress(60);
    Pause();
    Save(L"end");
    ASSERT_TRUE(run->Close());
    Start();
    Load(L"end");
    Save(L"again");
    EXPECT_EQ(FilesOf(L"again"), FilesOf(L"end"));
    EXPECT_TRUE(run->Close());
}
