#include "games/GameStore.h"
#include "platform/Ansi.h"
#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>

// What goes wrong around the program while it runs: each ends in a message that says what, or in none where none is
// due, and the game goes on.

namespace {

constexpr std::array FileExtensions{L".bin", L".txt", L".cgn", L".pgn"};

// Runs lines of a shell where the system below is a Unix, in a folder; false elsewhere. The lines have been run when it
// returns.
bool RunShell(const std::wstring& folder, const std::string& lines) {
    if (!Exists(L"Z:\\bin\\sh")) return false;
    const std::wstring script = folder + L"lines.sh", done = folder + L"lines.done";
    WriteFileText(script, lines + "\n: >lines.done\n");
    std::wstring command = L"Z:\\bin\\sh lines.sh";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started{};
    EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup,
                               &started));
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    EXPECT_TRUE(Eventually([&] { return Exists(done); })) << lines;
    DeleteFileW(script.c_str());
    DeleteFileW(done.c_str());
    return true;
}

class FaultTest : public testing::Test {
  protected:
    TestFolder folder;
    std::optional<ProgramRun> run;
    HWND scorlet = nullptr;
    const std::wstring saved = folder.Path() + L"SavedGames\\";

    static Settings WithScorlet() {
        Settings settings = QuietSettings(true);
        settings.WritePgn = true;
        return settings;
    }
    void Start(const Settings& settings = WithScorlet()) {
        run.reset();
        run.emplace(folder, settings);
        ASSERT_TRUE(run->Clock());
        scorlet = settings.OpenScorletAtStart ? run->WaitWindow(L"frmScorlet") : nullptr;
        ASSERT_EQ(scorlet != nullptr, settings.OpenScorletAtStart);
    }

    void Command(int entry) { PostMessageW(run->Clock(), WM_COMMAND, static_cast<WPARAM>(entry), 0); }
    void Move(int from, int to) const {
        for (int square : {from, to}) {
            RECT area{};
            GetWindowRect(GetDlgItem(scorlet, picBoard + square), &area);
            POINT point{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
            ScreenToClient(scorlet, &point);
            SendMessageW(scorlet, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        }
    }
    void Press() {
        const int before = MovesCounted();
        const int button = ControlOf(cmdClock, run->Enabled(cmdClock) ? White : Black);
        PostMessageW(run->Control(button), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        EXPECT_TRUE(Eventually([&] { return MovesCounted() == before + 1; })) << "the press does not count";
    }
    int MovesCounted() {
        return std::stoi("0" + ToAnsi(run->Text(lblMoveCount))) + std::stoi("0" + ToAnsi(run->Text(lblMoveCount + 1)));
    }
    void ExpectGameGoesOn() {
        EXPECT_FALSE(run->HasMessage());
        Press();
        const Side turn = MovesCounted() % 2 == 1 ? White : Black;
        const int seconds = run->Seconds(turn);
        EXPECT_TRUE(Eventually([&] { return run->Seconds(turn) < seconds; })) << "the clock stands";
        Press();
    }

    // Opens the file dialog and asks for its action, up to the question.
    HWND Ask(int entry, int button, const std::wstring& name) {
        Command(entry);
        const HWND files = run->WaitWindow(L"frmFiles");
        SendMessageW(GetDlgItem(files, txtGameName), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
        PostMessageW(files, WM_COMMAND, static_cast<WPARAM>(button), 0);
        return files;
    }
    HWND AskToSave(const std::wstring& name) { return Ask(mnuSave, cmdSave, name); }
    void AnswerYes() const { PostMessageW(run->WaitWindow(L"#32770"), WM_COMMAND, IDYES, 0); }
    void Save(const std::wstring& name) {
        const HWND files = AskToSave(name);
        AnswerYes();
        ASSERT_TRUE(Eventually([&] { return !IsWindow(files); })) << "not saved";
    }
    void ExpectMessage(const std::wstring& wanted) const {
        EXPECT_EQ(ToAnsi(run->MessageText()), ToAnsi(wanted));
        run->Answer(IDOK);
    }
    // A save that must end in a message that begins so, after the game's path and the reason.
    void ExpectNotSaved(const std::wstring& name, const std::wstring& extension, const std::wstring& reason) {
        const HWND files = AskToSave(name);
        const HWND question = run->WaitWindow(L"#32770");
        AnswerYes();
        ASSERT_TRUE(Eventually([&] { return !IsWindow(question); }));
        ExpectMessage(L"The game could not be saved. The file " + saved + name + extension +
                      L" could not be written: " + reason + L".");
        EXPECT_TRUE(IsWindowVisible(files)) << "another name can be tried";
        PostMessageW(files, WM_CLOSE, 0, 0);
        ASSERT_TRUE(run->Ended(files));
    }

    using FilesOfGame = std::array<std::string, FileExtensions.size()>;
    FilesOfGame Read(const std::wstring& name) const {
        FilesOfGame files;
        for (size_t i = 0; i < files.size(); ++i) files[i] = ReadFileText(saved + name + FileExtensions[i]);
        return files;
    }
    void Write(const std::wstring& name, const FilesOfGame& files) const {
        for (size_t i = 0; i < files.size(); ++i) {
            const std::wstring path = saved + name + FileExtensions[i];
            DeleteFileW((path + L".new").c_str());
            DeleteFileW(path.c_str());
            if (!files[i].empty()) WriteFileText(path, files[i]);
        }
    }
    bool HasWaitingFiles(const std::wstring& name) const {
        return std::any_of(FileExtensions.begin(), FileExtensions.end(),
                           [&](const wchar_t* extension) { return Exists(saved + name + extension + L".new"); });
    }
};

using Time = std::chrono::steady_clock;

}  // namespace

TEST_F(FaultTest, KilledWhileSavingLeavesEachFileOldOrNew) {
    constexpr int moments = 18;
    // Two games that differ in each of their files, and none.
    std::array<FilesOfGame, 3> games;
    std::array<Settings, 2> settings{WithScorlet(), WithScorlet()};
    Time::duration duration{};
    const auto begin = [&](size_t game) {
        settings[game].PlayerNames.fill(std::string(100, game == 0 ? 'a' : 'b'));
        Start(settings[game]);
        Move(game == 0 ? 52 : 42, game == 0 ? 54 : 44);
    };
    for (size_t game : {0, 1}) {
        begin(game);
        const HWND files = AskToSave(L"whole");
        const Time::time_point start = Time::now();
        AnswerYes();
        ASSERT_TRUE(Eventually([&] { return !IsWindow(files); }));
        duration = std::max(duration, Time::now() - start);
        games[game] = Read(L"whole");
    }
    for (size_t i = 0; i < FileExtensions.size(); ++i) ASSERT_NE(games[0][i], games[1][i]) << i;
    const GameStore store(saved);
    int between = 0;
    for (int moment = 0; moment < moments; ++moment) {
        SCOPED_TRACE(moment);
        const size_t wanted = static_cast<size_t>(moment) % 2;
        const FilesOfGame& after = games[wanted];
        const FilesOfGame& before = moment % 3 == 2 ? games[2] : games[1 - wanted];
        begin(wanted);
        Write(L"game", before);
        AskToSave(L"game");
        AnswerYes();
        const Time::time_point end = Time::now() + std::chrono::seconds(20);
        while (!HasWaitingFiles(L"game") && Read(L"game") == before && Time::now() < end) {
        }
        const Time::time_point kill = Time::now() + duration * moment / moments;
        while (Time::now() < kill) {
        }
        TerminateProcess(run->Process(), 99);
        ASSERT_TRUE(run->WaitEnd());
        const FilesOfGame left = Read(L"game");
        size_t replaced = 0;
        for (size_t i = 0; i < left.size(); ++i) {
            EXPECT_TRUE(left[i] == before[i] || left[i] == after[i])
                << ToAnsi(FileExtensions[i]) << " has " << left[i].size() << " bytes";
            replaced += left[i] == after[i] ? 1 : 0;
        }
        if (HasWaitingFiles(L"game")) ++between;
        if (left[0].empty()) continue;
        EXPECT_TRUE(!before[0].empty() || replaced == left.size()) << "a new game is there whole or not at all";
        SavedGame loaded;
        EXPECT_FALSE(store.LoadGame(L"game", Settings(), loaded)) << "damaged";
    }
    EXPECT_GT(between, 0) << "every kill came too late or too early";
    std::printf("%d of %d in the middle of saving\n", between, moments);

    // What a killed program leaves beside the files is in nobody's way.
    Write(L"game", games[0]);
    WriteFileText(saved + L"game.bin.new", "half of it");
    begin(1);
    Save(L"game");
    EXPECT_EQ(Read(L"game"), games[1]);
    EXPECT_FALSE(HasWaitingFiles(L"game"));
}

TEST_F(FaultTest, FolderOfSavedGamesRemovedOrReplacedByAFile) {
    Start();
    Press();
    Move(52, 54);
    Save(L"first");
    Write(L"first", {});
    ASSERT_TRUE(RemoveDirectoryW(saved.c_str()));
    const HWND files = Ask(mnuLoad, cmdLoad, L"first");
    ExpectMessage(L"Game first could not be found.");
    PostMessageW(files, WM_CLOSE, 0, 0);
    ASSERT_TRUE(run->Ended(files));
    Save(L"second");
    for (const std::string& file : Read(L"second")) EXPECT_FALSE(file.empty()) << "the folder is made again";
    ExpectGameGoesOn();

    Write(L"second", {});
    ASSERT_TRUE(RemoveDirectoryW(saved.c_str()));
    WriteFileText(folder.Path() + L"SavedGames", "in the way");
    ExpectNotSaved(L"third", L".txt", L"the path was not found");
    EXPECT_EQ(ReadFileText(folder.Path() + L"SavedGames"), "in the way");
    ExpectGameGoesOn();
}

TEST_F(FaultTest, WriteProtectedGameAndFolder) {
    Start();
    Press();
    Save(L"game");
    const FilesOfGame kept = Read(L"game");
    Move(52, 54);
    for (const wchar_t* extension : FileExtensions) {
        const std::wstring path = saved + L"game" + extension;
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
        ExpectNotSaved(L"game", extension, L"access was denied");
        EXPECT_EQ(Read(L"game"), kept);
        EXPECT_FALSE(HasWaitingFiles(L"game"));
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    ExpectGameGoesOn();
    // The user root is refused by that attribute only, and not on every file system.
    if (!RunShell(folder.Path(), "chmod 555 SavedGames; chattr +i SavedGames")) return;
    if (CreateDirectoryW((saved + L"allowed").c_str(), nullptr)) {
        RemoveDirectoryW((saved + L"allowed").c_str());
        std::printf("this user may write into any folder: not tested\n");
    } else {
        ExpectNotSaved(L"other", L".txt", L"access was denied");
        EXPECT_EQ(Read(L"game"), kept);
        ExpectGameGoesOn();
    }
    RunShell(folder.Path(), "chattr -i SavedGames; chmod 755 SavedGames");
    Save(L"other");
}

TEST_F(FaultTest, FullDiskIsTold) {
    Start();
    Press();
    Save(L"game");
    const FilesOfGame kept = Read(L"game");
    Move(52, 54);
    // Some bytes go in and no more: the program may make no larger files. A program that was killed has left one.
    WriteFileText(saved + L"game.bin.new", "half of it");
    const std::wstring path = folder.Path().substr(0, folder.Path().size() - 1);
    const std::string name = ToAnsi(path.substr(path.rfind(L'\\') + 1));
    if (!RunShell(folder.Path(),
                  "for process in /proc/[0-9]*; do\n"
                  "  if tr -d '\\0' <$process/cmdline | grep -q '" +
                      name +
                      ".*torvanix[.]exe$'; then\n"
                      "    prlimit --pid ${process#/proc/} --fsize=1500:\n"
                      "  fi\n"
                      "done 2>errors"))
        GTEST_SKIP() << "a full disk is made with the means of Linux";
    ExpectNotSaved(L"game", L".bin", L"the disk is full");
    EXPECT_EQ(Read(L"game"), kept);
    EXPECT_FALSE(HasWaitingFiles(L"game"));
    ExpectGameGoesOn();

    // No byte goes in.
    RunShell(folder.Path(), "ln -s /dev/full SavedGames/game.txt.new");
    ExpectNotSaved(L"game", L".txt", L"the disk is full");
    EXPECT_EQ(Read(L"game"), kept);
    RunShell(folder.Path(), "rm -f SavedGames/game.txt.new");
    ExpectGameGoesOn();
}

TEST_F(FaultTest, ClipboardHeldByAnotherProgram) {
    Start();
    Press();
    ASSERT_TRUE(Eventually([&] { return OpenClipboard(nullptr) != 0; }));
    Command(mnuPrint);
    const std::wstring text = run->MessageText();
    CloseClipboard();
    EXPECT_EQ(ToAnsi(text), "The move list could not be put on the clipboard: it is in use by another program.");
    EndEditor();
    run->Answer(IDOK);
    ExpectGameGoesOn();
}

TEST_F(FaultTest, EditorMissingOrBroken) {
    std::array<wchar_t, MAX_PATH> windows{}, system{};
    GetWindowsDirectoryW(windows.data(), MAX_PATH);
    GetSystemDirectoryW(system.data(), MAX_PATH);
    const std::wstring editor = std::wstring(windows.data()) + L"\\notepad.exe";
    Start();
    Press();
    const HiddenFile second(std::wstring(system.data()) + L"\\notepad.exe"), first(editor);
    Command(mnuPrint);
    ExpectMessage(L"The text editor Notepad.exe was not found on this computer. The move list cannot be printed.");
    WriteFileText(editor, "no program");
    Command(mnuPrint);
    const std::wstring start =
        L"The text editor " + std::wstring(windows.data()) + L"\\Notepad.exe could not be started: ";
    EXPECT_EQ(ToAnsi(run->MessageText().substr(0, start.size())), ToAnsi(start));
    run->Answer(IDOK);
    DeleteFileW(editor.c_str());
    ExpectGameGoesOn();
}

TEST_F(FaultTest, NoSoundDeviceIsNoReasonForAMessage) {
    const NoSoundDevice silence;
    Settings settings = WithScorlet();
    settings.SetButtonSound(1);
    settings.SetFlagSound(2);
    DeleteFileW(CaptureFile().c_str());
    Start(settings);
    Press();
    ExpectGameGoesOn();
    EXPECT_FALSE(Exists(CaptureFile())) << "there was a device";
    Command(mnuReset);
    run->Answer(IDYES);
    Command(mnuSetup);
    const HWND setup = run->WaitWindow(L"frmSetup");
    SendMessageW(setup, WM_COMMAND, cmdPreviewFlag, 0);
    EXPECT_FALSE(run->HasMessage());
    PostMessageW(setup, WM_CLOSE, 0, 0);
    ASSERT_TRUE(run->Ended(setup));
    ExpectGameGoesOn();
}

TEST_F(FaultTest, RefusedTimerIsToldAndTriedAgain) {
    Start(QuietSettings());
    // The system's own function answers 0 in that process: it lies at the same place in all of them.
    void* const function = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetTimer"));
    constexpr std::array<uint8_t, 3> refuse{0x31, 0xC0, 0xC3};  // xor eax, eax; ret
    std::array<uint8_t, 3> before{};
    const auto write = [&](const std::array<uint8_t, 3>& code) {
        DWORD protection = 0;
        VirtualProtectEx(run->Process(), function, code.size(), PAGE_EXECUTE_READWRITE, &protection);
        EXPECT_TRUE(WriteProcessMemory(run->Process(), function, code.data(), code.size(), nullptr));
        VirtualProtectEx(run->Process(), function, code.size(), protection, &protection);
        FlushInstructionCache(run->Process(), function, code.size());
    };
    ASSERT_TRUE(ReadProcessMemory(run->Process(), function, before.data(), before.size(), nullptr));

    write(refuse);
    PostMessageW(run->Control(cmdClock), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ExpectMessage(L"Timer can not be created.");
    EXPECT_EQ(MovesCounted(), 0);
    EXPECT_TRUE(run->Enabled(cmdClock) && run->Enabled(cmdClock + 1)) << "nothing has begun";
    write(before);
    Press();
    ExpectGameGoesOn();

    Command(mnuPause);
    ASSERT_TRUE(run->Becomes(cmdPause, L"Resume"));
    write(refuse);
    Command(mnuPause);
    ExpectMessage(L"Timer not created. Ending program.");
    EXPECT_EQ(ToAnsi(run->Text(cmdPause)), "Resume");
    write(before);
    Command(mnuPause);
    ASSERT_TRUE(run->Becomes(cmdPause, L"Pause"));
    ExpectGameGoesOn();
}
