#include "tests/desktop/Desktop.h"

#include "platform/Ansi.h"
#include "resources/Version.h"

#include <gtest/gtest.h>

// Start-up: folders, settings files good and bad, and the log.

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

TEST(StartUpTest, MissingFoldersAreMadeAndTheLogIsKept) {
    DeleteFileW(LogFile().c_str());
    RemoveDirectoryW((SystemFolder() + L"LogFiles").c_str());
    const TestFolder folder;
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
    }
    EXPECT_TRUE(Exists(folder.Path() + L"SavedGames\\kept.bin"));
}

TEST(StartUpTest, DamagedSettingsAreToldAndLeftUntouched) {
    struct Row {
        const char* Name;
        size_t At;  // byte to change
        char To;
        size_t Length;
        const wchar_t* Reason;
        const wchar_t* Face;
    };
    // Slots 0 and 1 hold the lengths of two empty names; each slot in use takes six bytes.
    const Row rows[] = {
        {"cut", 0, 3, 20, L"the file ends at slot 3", L"00:45:00"},
        {"unknown kind", 6, 99, 5000, L"slot 1 holds a value of an unknown kind", L"00:20:00"},
        {"flag sound", 15 * 6 + 2, 6, 5000, L"the value in slot 15 is out of its range", L"00:45:00"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        const TestFolder folder;
        Settings settings;
        settings.Control.PeriodLimit.fill(2700);
        const std::wstring file = folder.Path() + L"Data\\TORVANIX.set";
        WriteSettingsFile(folder.Path(), settings);
        std::string bytes = ReadFileText(file);
        bytes[row.At] = row.To;
        bytes.resize(std::min(bytes.size(), row.Length));
        WriteFileText(file, bytes);

        ProgramRun run(folder);
        const std::wstring text = run.MessageText();
        EXPECT_NE(text.find(file), std::wstring::npos) << ToAnsi(text);
        EXPECT_NE(text.find(row.Reason), std::wstring::npos) << ToAnsi(text);
        run.Answer(IDOK);
        EXPECT_EQ(run.Text(lblFace), row.Face) << "what was read before it counts";
        run.Click(ControlOf(cmdClock, White));
        EXPECT_TRUE(run.Becomes(lblMoveCount, L"1.")) << "the program runs";
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
    EXPECT_EQ(run.MessageText(),
              L"The settings file " + file + L" could not be read: access was denied. The present settings stay.");
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
