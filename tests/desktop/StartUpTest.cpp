#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"
#include "resources/Version.h"
#include "settings/SettingsRecord.h"

#include <gtest/gtest.h>

// Start-up: languages, folders, settings files good and bad, and the log.

namespace {

std::wstring SystemFolder() {
    wchar_t folder[MAX_PATH];
    GetSystemDirectoryW(folder, MAX_PATH);
    return std::wstring(folder) + L"\\";
}

std::wstring LogFile() { return SystemFolder() + L"LogFiles\\TORVANIX.log"; }

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2)
        lines.push_back(text.substr(start, end - start));
    return lines;
}

}  // namespace

TEST(StartUpTest, TextsOfEachLanguage) {
    struct Row {
        int32_t language;
        const wchar_t *white, *black, *pause, *moveNumber, *after, *yes, *question;
    };
    const Row rows[] = {
        {Turkish, L"BEYAZ", L"SİYAH", L"Duraklat", L"Hamle No", L"40. hamleden sonra", L"&Evet",
         L"Bu işlem saati sıfırlayacak. Yine de devam etmek istiyor musunuz?"},
        {English, L"WHITE", L"BLACK", L"Pause", L"Move Number", L"After 40th move", L"&Yes",
         L"This will Reset the clock. Do you want to continue anyway?"},
        {French, L"BLANCS", L"NOIRS", L"Pause", L"Coup n°", L"Après le 40e coup", L"&Oui",
         L"Cela va réinitialiser la pendule. Voulez-vous continuer quand même\u00A0?"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.language);
        const TestFolder folder;
        Settings settings = QuietSettings();
        settings.LanguageIndex = row.language;
        ProgramRun run(folder, settings);
        EXPECT_EQ(TextOf(run.Clock()), L"TORVANIX");
        EXPECT_EQ(run.Text(lblSide), row.white);
        EXPECT_EQ(run.Text(lblSide + 1), row.black);
        EXPECT_EQ(run.Text(cmdPause), row.pause);
        EXPECT_EQ(run.Text(lblMoveNumber), row.moveNumber);
        EXPECT_EQ(run.Text(lblPeriod), row.after);
        run.Click(ControlOf(imgFlagUp, White));
        EXPECT_EQ(run.MessageText(), row.question);
        EXPECT_EQ(TextOf(GetDlgItem(run.WaitWindow(L"#32770"), IDYES)), row.yes);
        run.Answer(IDNO);
    }
}

TEST(StartUpTest, SettingsShowInTheWindow) {
    const TestFolder folder;
    Settings settings = QuietSettings();
    settings.PlayerNames = {
        "Ren\xE9"
        "e",
        "\xD6mer & Ali"};
    settings.SetClockType(2);
    settings.PeriodLimit = {5400, 60};
    settings.SecondPeriodTime = {1800, 0};
    settings.MoveBonus = {5, 0};
    settings.CountTimeDown = true;
    settings.ShowMoveNumber = false;
    settings.MovesFirstPeriod = 41;
    ProgramRun run(folder, settings);
    EXPECT_EQ(TextOf(run.Control(lblSide)), L"Renée");
    EXPECT_EQ(run.Text(lblSide + 1), L"Ömer & Ali");
    EXPECT_EQ(run.Text(lblFace), L"01:30:00");
    EXPECT_EQ(run.Text(lblFace + 1), L"00:01:00");
    EXPECT_EQ(run.Text(lblPeriod), L"After 41st move");
    EXPECT_EQ(run.Text(lblPeriodTime), L"00:30");
    EXPECT_EQ(run.Text(lblBonusTime), L"00:05");
    EXPECT_TRUE(run.Visible(lblBonus));
    EXPECT_FALSE(run.Visible(lblBonus + 1) || run.Visible(lblMoveNumber) || run.Visible(lblMoveCount + 1));
}

TEST(StartUpTest, MissingFoldersAreMadeAndTheLogIsKept) {
    DeleteFileW(LogFile().c_str());
    RemoveDirectoryW((SystemFolder() + L"LogFiles").c_str());
    const TestFolder folder;
    size_t entries = 0;
    for (int start = 1; start <= 2; ++start) {
        ProgramRun run(folder);
        EXPECT_EQ(run.Text(lblFace), L"00:20:00") << "the DEFAULT preset";
        EXPECT_TRUE(run.Close());
        EXPECT_TRUE(Exists(folder.Path() + L"SavedGames"));
        EXPECT_TRUE(Exists(folder.Path() + L"Data"));
        WriteFileText(folder.Path() + L"SavedGames\\kept.bin", "x");

        const auto lines = Lines(ReadFileText(LogFile()));
        ASSERT_EQ(lines.size(), 1 + 4 * static_cast<size_t>(start));
        EXPECT_EQ(lines[0], "#Software: TORVANIX");
        const size_t entry = lines.size() - 4;
        EXPECT_EQ(lines[entry], "#Version: " TORVANIX_VERSION);
        EXPECT_EQ(lines[entry + 1].substr(0, 7), "#Date: ");
        EXPECT_EQ(lines[entry + 2].substr(0, 25), "#Message: 43528-0-WINDOWS");
        EXPECT_EQ(lines[entry + 3], "#");
        ++entries;
    }
    EXPECT_EQ(entries, 2u);
    EXPECT_TRUE(Exists(folder.Path() + L"SavedGames\\kept.bin"));
}

TEST(StartUpTest, DamagedSettingsAreToldAndLeftUntouched) {
    struct Row {
        const char* name;
        size_t at;  // byte to change
        char to;
        size_t length;
        const wchar_t* reason;
        const wchar_t* face;
    };
    // Slots 0 and 1 hold the lengths of two empty names; each slot in use takes six bytes.
    const Row rows[] = {
        {"cut", 0, 3, 20, L"the file ends at slot 3", L"00:45:00"},
        {"empty", 0, 3, 0, L"the file ends at slot 0", L"00:20:00"},
        {"unknown kind", 6, 99, 5000, L"slot 1 holds a value of an unknown kind", L"00:20:00"},
        {"flag sound", 15 * 6 + 2, 6, 5000, L"the value in slot 15 is out of its range", L"00:45:00"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const TestFolder folder;
        Settings settings;
        settings.PeriodLimit.fill(2700);
        const std::wstring file = folder.Path() + L"Data\\TORVANIX.set";
        std::string bytes = EncodeRecord(WriteSettings(settings));
        bytes[row.at] = row.to;
        bytes.resize(std::min(bytes.size(), row.length));
        CreateDirectoryW((folder.Path() + L"Data").c_str(), nullptr);
        WriteFileText(file, bytes);

        ProgramRun run(folder);
        const std::wstring text = run.MessageText();
        EXPECT_NE(text.find(file), std::wstring::npos) << ToAnsi(text);
        EXPECT_NE(text.find(row.reason), std::wstring::npos) << ToAnsi(text);
        run.Answer(IDOK);
        EXPECT_EQ(run.Text(lblFace), row.face) << "what was read before it counts";
        run.Click(ControlOf(cmdClock, White));
        EXPECT_TRUE(Eventually([&] { return run.Text(lblMoveCount) == L"1."; })) << "the program runs";
        EXPECT_TRUE(run.Close());
        EXPECT_EQ(ReadFileText(file), bytes);
    }
}

TEST(StartUpTest, SettingsThatCannotBeReadAreTold) {
    const TestFolder folder;
    const std::wstring file = folder.Path() + L"Data\\TORVANIX.set";
    CreateDirectoryW((folder.Path() + L"Data").c_str(), nullptr);
    CreateDirectoryW(file.c_str(), nullptr);
    ProgramRun run(folder);
    const std::wstring text = run.MessageText();
    EXPECT_EQ(text, L"The settings file " + file +
                        L" could not be read: access was denied. The present settings "
                        L"stay.");
    run.Answer(IDOK);
    EXPECT_EQ(run.Text(lblFace), L"00:20:00");
}

TEST(StartUpTest, DataFolderThatCannotBeMadeEndsTheProgram) {
    const TestFolder folder;
    WriteFileText(folder.Path() + L"Data", "in the way");
    ProgramRun run(folder);
    const std::wstring text = run.MessageText();
    EXPECT_NE(text.find(folder.Path() + L"Data"), std::wstring::npos) << ToAnsi(text);
    EXPECT_NE(text.find(L"a file has the same name"), std::wstring::npos) << ToAnsi(text);
    run.Answer(IDOK);
    EXPECT_TRUE(run.WaitEnd());
    EXPECT_NE(run.ExitCode(), 0u);
    const auto lines = Lines(ReadFileText(LogFile()));
    ASSERT_GE(lines.size(), 4u);
    EXPECT_EQ(lines[lines.size() - 2].substr(0, 16), "#Message: 22677-") << lines[lines.size() - 2];
}
