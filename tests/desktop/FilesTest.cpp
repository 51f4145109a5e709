#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

// Saving, loading, deleting and printing in the real program, by mouse and keys.

namespace {

enum GameEntry { LoadEntry = 1, SaveEntry, DeleteEntry };

class FilesTest : public testing::Test {
  protected:
    TestFolder folder;
    std::optional<ProgramRun> run;
    HWND files = nullptr;

    void Start(const Settings& settings = QuietSettings()) {
        run.emplace(folder, settings);
        ASSERT_TRUE(run->FocusComes(cmdClock));
    }
    // With the Scorlet, and e2-e4 played on it.
    void StartAndMove(Settings settings) {
        settings.OpenScorletAtStart = true;
        Start(settings);
        ASSERT_TRUE(run->WaitWindow(L"frmScorlet"));
        run->Click(ControlOf(lblFace, White));
        run->Play("e2e4");
        run->Click(ControlOf(lblFace, White));
        run->ExpectLists("1. e4 / 1. \?\?-\?\?");
    }
    // Menus are opened in the window in front.
    void ClockToFront() {
        SetForegroundWindow(run->Clock());
        ASSERT_TRUE(ComesToFront(run->Clock()));
    }

    std::wstring PathOf(const std::string& file) const { return folder.Path() + L"SavedGames\\" + FromAnsi(file); }

    void OpenFiles(GameEntry entry) {
        ClockToFront();
        run->Choose(0, entry);
        files = run->WaitWindow(L"frmFiles");
        ASSERT_TRUE(files) << "the file dialog does not open";
        ASSERT_TRUE(run->FocusComes(txtGameName));
    }
    void Type(const std::string& name) const {
        for (char character : name) run->Key(static_cast<WORD>(VkKeyScanA(character) & 0xFF));
    }
    bool Holds(const std::wstring& name) const { return Becomes(GetDlgItem(files, txtGameName), name); }
    void Paste(const std::wstring& name) const {
        SendMessageW(GetDlgItem(files, txtGameName), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    void CancelFiles() {
        run->Click(GetDlgItem(files, cmdCancel));
        ASSERT_TRUE(run->Ended(files));
    }
    // Enter in the dialog, the expected message, the answer to it.
    void Expect(const std::wstring& message, int answer) const {
        SetForegroundWindow(files);
        run->Key(VK_RETURN);
        EXPECT_EQ(run->MessageText(), message);
        run->Answer(answer);
    }
    void TypeAndAnswer(GameEntry entry, const std::string& name, const std::wstring& question) {
        OpenFiles(entry);
        Type(name);
        ASSERT_TRUE(Holds(FromAnsi(name)));
        Expect(question, IDYES);
        ASSERT_TRUE(run->Ended(files));
    }
    void Save(const std::string& name) {
        TypeAndAnswer(SaveEntry, name, L"The game will be saved as : " + FromAnsi(name));
    }
    void Load(const std::string& name) {
        TypeAndAnswer(LoadEntry, name, L"Game " + FromAnsi(name) + L" will be loaded.");
    }

    // What stands in the windows: the clock's texts, and all of the Scorlet.
    std::vector<std::wstring> Seen() {
        std::vector<std::wstring> texts;
        for (int id = lblFace; id <= lblBonusTime + 1; ++id) {
            if (id < lblBlink || id >= lblPeriod) texts.push_back(run->Text(id));
        }
        const HWND scorlet = run->FindWindowNow(L"frmScorlet");
        if (!scorlet) return texts;
        for (int square = 11; square <= 88; ++square) texts.push_back(TextOf(GetDlgItem(scorlet, picBoard + square)));
        for (int slot = 0; slot < 2 * CapturedSlots; ++slot)
            texts.push_back(IsWindowVisible(GetDlgItem(scorlet, imgCapturedWQ + slot)) ? L"shown" : L"hidden");
        texts.push_back(FromAnsi(run->Lists()));
        return texts;
    }
};

}  // namespace

TEST_F(FilesTest, GameGoesOnAfterAFreshStart) {
    Settings settings = QuietSettings();
    settings.PlayerNames = {"Team 1. Anna", "Ren\xE9"};
    settings.SetClockType(2);
    settings.Control.MoveBonus = {5, 7};
    settings.WritePgn = true;
    StartAndMove(settings);
    // 1... d5 2.exd5 Qxd5, a press after each.
    bool black = true;
    for (const char* move : {"d7d5", "e4d5", "d8d5"}) {
        run->Play(move);
        run->Click(ControlOf(lblFace, White), black);
        black = !black;
    }
    ASSERT_TRUE(
        Eventually([&] { return run->Lines(White).ends_with("|3. \?\?-\?\?") && run->Text(lblMoveCount) == L"3."; }));
    ASSERT_TRUE(Eventually([&] { return run->Seconds(White) < 1200 + 2 * 5; }));
    ClockToFront();
    ASSERT_TRUE(run->FocusComes(cmdClock));
    run->Key('P');
    ASSERT_TRUE(run->Becomes(cmdPause, L"Resume"));
    Save("round.1");
    const auto seen = Seen();
    EXPECT_EQ(seen[2], L"Team 1. Anna");
    ASSERT_TRUE(run->Close());
    for (const char* extension : {".bin", ".txt", ".cgn", ".pgn"})
        EXPECT_TRUE(Exists(PathOf(std::string("round.1") + extension))) << extension;

    Start();
    Load("round.1");
    ASSERT_TRUE(run->WaitWindow(L"frmScorlet"));
    EXPECT_EQ(TextOf(run->Clock()), L"TORVANIX- [round.1 (Loaded Game)]");
    EXPECT_EQ(Seen(), seen);
    Save("again");
    for (const char* extension : {".txt", ".cgn", ".pgn"}) {
        EXPECT_EQ(ReadFileText(PathOf(std::string("again") + extension)),
                  ReadFileText(PathOf(std::string("round.1") + extension)));
    }
    EXPECT_FALSE(run->Enabled(cmdClock) || run->Enabled(cmdClock + 1));
    const int left = run->Seconds(White);
    run->Click(ControlOf(cmdPause, White));
    ASSERT_TRUE(Eventually([&] { return run->Seconds(White) < left; })) << "the side to move goes on";
    EXPECT_EQ(run->Text(lblMoveCount) + run->Text(lblMoveCount + 1), L"3.2.") << "no move is counted by that";
    run->Play("b1c3");
    run->Click(ControlOf(lblFace, White));
    ASSERT_TRUE(Eventually(
        [&] { return run->Text(lblMoveCount + 1) == L"3." && run->Lines(Black).ends_with("|3. \?\?-\?\?"); }));
    EXPECT_TRUE(run->Lines(White).ends_with("|3. Nc3")) << run->Lists();

    ClockToFront();
    run->Key('R', true);
    run->Answer(IDYES);
    EXPECT_TRUE(Becomes(run->Clock(), L"TORVANIX"));
    EXPECT_EQ(run->Text(lblSide), L"WHITE") << "the user's own settings again";
}

TEST_F(FilesTest, NamesAndQuestions) {
    Start();
    OpenFiles(LoadEntry);
    EXPECT_EQ(TextOf(GetDlgItem(files, lblHint)), L"Enter a name or select from the list   to LOAD the game.");
    EXPECT_FALSE(IsWindowVisible(GetDlgItem(files, cmdSave)) || IsWindowVisible(GetDlgItem(files, cmdDelete)));
    Expect(L"Select a game from the list to load.", IDOK);
    EXPECT_EQ(TextOf(files), L"LOAD Information");
    Type("none");
    ASSERT_TRUE(Holds(L"none"));
    Expect(L"Game none could not be found.", IDOK);
    Type(" /");
    run->Key(VK_BACK);
    EXPECT_TRUE(Holds(L"non")) << "blanks and slashes are swallowed";
    Paste(L"a/b");
    EXPECT_TRUE(Holds(L"non")) << "a pasted one is undone";
    run->Key(VK_ESCAPE);
    ASSERT_TRUE(run->Ended(files));

    OpenFiles(SaveEntry);
    Paste(L"com1.game");
    Expect(L"Windows keeps the name com1.game for a device. Choose another name.", IDOK);
    CancelFiles();

    Save("twice");
    const std::string first = ReadFileText(PathOf("twice.bin"));
    run->Key(VK_SPACE);
    ASSERT_TRUE(run->Becomes(lblMoveCount, L"1."));
    OpenFiles(SaveEntry);
    Type("twice");
    run->Key(VK_RETURN);
    EXPECT_EQ(run->MessageText(), L"The game named twice already exists. Do you want to overwrite?");
    EXPECT_EQ(TextOf(run->WaitWindow(L"#32770")), L"SAVE Information");
    run->Key(VK_RETURN);  // No is preselected
    ASSERT_TRUE(Eventually([&] { return !run->HasMessage(); }));
    EXPECT_TRUE(IsWindowVisible(files));
    EXPECT_EQ(ReadFileText(PathOf("twice.bin")), first);
    Expect(L"The game named twice already exists. Do you want to overwrite?", IDYES);
    ASSERT_TRUE(run->Ended(files));
    EXPECT_NE(ReadFileText(PathOf("twice.bin")), first);
    EXPECT_FALSE(Exists(PathOf("twice.txt"))) << "saved without the Scorlet";
    Load("twice");
    ASSERT_TRUE(run->WaitWindow(L"frmScorlet")) << "it opens with nothing on it";
    EXPECT_EQ(run->Lists(), " / ");
}

TEST_F(FilesTest, DeletingFromTheListLeavesThePgn) {
    Start();
    Save("beta");
    Save("alpha");
    for (const char* file : {"alpha.txt", "alpha.cgn", "alpha.pgn", "gamma.binx"}) WriteFileText(PathOf(file), "x");
    OpenFiles(DeleteEntry);
    const HWND list = GetDlgItem(files, lstGames);
    EXPECT_EQ(LinesOf(list), (std::vector<std::wstring>{L"alpha", L"beta"}));
    run->Click(list);  // below the entries: nothing
    run->Key(VK_HOME);
    EXPECT_TRUE(Holds(L"alpha"));
    // A double click deletes, after the question.
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
        PostMessageW(list, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(20, 5));
    EXPECT_EQ(run->MessageText(), L"Saved game alpha will be deleted.");
    run->Answer(IDYES);
    EXPECT_TRUE(Holds(L""));
    EXPECT_EQ(LinesOf(list), std::vector<std::wstring>{L"beta"});
    EXPECT_FALSE(Exists(PathOf("alpha.bin")) || Exists(PathOf("alpha.txt")) || Exists(PathOf("alpha.cgn")));
    EXPECT_TRUE(Exists(PathOf("alpha.pgn")) && Exists(PathOf("gamma.binx")) && Exists(PathOf("beta.bin")));
    Paste(L"alpha");
    Expect(L"Saved game alpha could not be found", IDOK);
}

TEST_F(FilesTest, DamagedFilesAreNamedAndNothingIsTouched) {
    Settings settings = QuietSettings();
    settings.WritePgn = true;
    StartAndMove(settings);
    Save("good");
    struct Damage {
        const char* Extension;
        std::string Bytes;
        std::wstring Reason;
    };
    const std::string record = ReadFileText(PathOf("good.bin")), moves = ReadFileText(PathOf("good.cgn"));
    const Damage damages[] = {
        {".bin", record.substr(0, 100), L"the file ends at slot"},
        {".txt", "WR  WN\r\n", L"line 1 has the wrong form"},
        {".cgn", moves.substr(0, moves.size() - 4), L"the moves break off at byte"},
    };
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.Bytes.substr(0, 20));
        const std::wstring path = PathOf(std::string("good") + damage.Extension);
        const std::string good = ReadFileText(path);
        WriteFileText(path, damage.Bytes);
        OpenFiles(LoadEntry);
        Paste(L"good");
        Expect(L"Game good will be loaded.", IDYES);
        const std::wstring start = L"The game could not be loaded. The file " + path + L" is damaged: " + damage.Reason;
        EXPECT_EQ(run->MessageText().substr(0, start.size()), start);
        run->Answer(IDOK);
        EXPECT_TRUE(IsWindowVisible(files)) << "the dialog stays";
        EXPECT_EQ(ReadFileText(path), damage.Bytes) << "the file stays";
        CancelFiles();
        WriteFileText(path, good);
    }
    EXPECT_EQ(TextOf(run->Clock()), L"TORVANIX");
    run->ExpectLists("1. e4 / 1. \?\?-\?\?");
    const int left = run->Seconds(Black);
    EXPECT_TRUE(Eventually([&] { return run->Seconds(Black) < left; })) << "the running game goes on";

    const UniqueFile held(CreateFileW(PathOf("good.cgn").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    const std::string before = ReadFileText(PathOf("good.bin"));
    OpenFiles(SaveEntry);
    Paste(L"good");
    Expect(L"The game named good already exists. Do you want to overwrite?", IDYES);
    EXPECT_EQ(run->MessageText(), L"The game could not be saved. The file " + PathOf("good.cgn") +
                                      L" could not be written: it is in use by another program.");
    run->Answer(IDOK);
    EXPECT_EQ(ReadFileText(PathOf("good.bin")), before) << "no file of the game has been replaced";
    EXPECT_FALSE(Exists(PathOf("good.bin.new")) || Exists(PathOf("good.txt.new")));
    CancelFiles();
    OpenFiles(DeleteEntry);
    Paste(L"good");
    Expect(L"Saved game good will be deleted.", IDYES);
    EXPECT_EQ(run->MessageText(),
              L"The file " + PathOf("good.cgn") + L" could not be deleted: it is in use by another program.");
    run->Answer(IDOK);
    EXPECT_TRUE(Exists(PathOf("good.bin")) && Exists(PathOf("good.txt")));
}

TEST_F(FilesTest, PrintingPastesTheListIntoTheEditor) {
    Settings settings = QuietSettings();
    settings.PlayerNames = {"Zo\xEB", "Carl"};
    StartAndMove(settings);
    ClockToFront();
    run->Choose(2, 2);
    const HWND text = EditorText();
    SYSTEMTIME now;
    GetLocalTime(&now);
    wchar_t date[32];
    swprintf(date, 32, L"%02d/%02d/%04d", now.wDay, now.wMonth, now.wYear);
    const std::wstring expected = L"White: Zoë\r\n\r\nBlack: Carl\r\n\r\nDate: " + std::wstring(date) + L"\r\nWhite" +
                                  std::wstring(34, L' ') + L"Black\r\n1. e4" + std::wstring(34, L' ') +
                                  L"1. \?\?-\?\?\r\n";
    EXPECT_TRUE(Becomes(text, expected));
    EXPECT_TRUE(Eventually([&] { return run->Seconds(Black) < 1200; })) << "the clock runs on";
    EXPECT_EQ(run->Text(cmdPause + 1), L"Pause") << "no key has gone to the clock";
    EndEditor();
}
