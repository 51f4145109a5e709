#include "settings/SettingsFile.h"

#include "base/RunTimeError.h"
#include "platform/SystemError.h"
#include "settings/Texts.h"
#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

namespace {

class SettingsFileTest : public testing::Test {
  protected:
    TestFolder folder;
    SettingsFile file{folder.Path()};
    std::wstring path = folder.Path() + L"TORVANIX.set";
    Settings settings;
    Texts texts{settings.LanguageIndex};

    // A save that must fail with this code, with the old file as it was and nothing left beside it.
    void ExpectRefused(DWORD code, const std::string& old) {
        try {
            file.Save(settings);
            ADD_FAILURE() << "saved";
        } catch (const SystemError& error) {
            EXPECT_EQ(error.Code(), code);
            EXPECT_EQ(error.Thing(), path);
        }
        EXPECT_EQ(ReadFileText(path), old);
        EXPECT_FALSE(Exists(path + L".new"));
    }
};

}  // namespace

TEST_F(SettingsFileTest, SavesWholeAndLoadsAgain) {
    EXPECT_EQ(file.LoadLanguage(), English) << "no file";
    settings.PeriodLimit.fill(5400);
    settings.LanguageIndex = Turkish;
    file.Save(settings);
    Settings read;
    EXPECT_EQ(file.Load(read, texts), L"");
    EXPECT_EQ(read.PeriodLimit[White], 5400);
    EXPECT_EQ(read.LanguageIndex, English) << "the language is read by itself";
    EXPECT_EQ(file.LoadLanguage(), Turkish);

    DeleteFileW(path.c_str());
    EXPECT_EQ(file.Load(read, texts), L"");
    EXPECT_EQ(read.PeriodLimit[White], 1200) << "without a file the DEFAULT preset";
}

TEST_F(SettingsFileTest, RefusedSavesLeaveTheOldFile) {
    file.Save(settings);
    const std::string old = ReadFileText(path);
    settings.PeriodLimit.fill(60);

    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    ExpectRefused(ERROR_ACCESS_DENIED, old);
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);

    settings.PlayerNames[White] = std::string(285, 'a');
    EXPECT_THROW(file.Save(settings), RunTimeError);
    EXPECT_EQ(ReadFileText(path), old);
}

TEST_F(SettingsFileTest, FileHeldByAnotherProgramIsTold) {
    file.Save(settings);
    const std::string old = ReadFileText(path);
    {
        const UniqueFile held(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_NE(held.get(), INVALID_HANDLE_VALUE);
        Settings read;
        const std::wstring problem = file.Load(read, texts);
        EXPECT_NE(problem.find(L"it is in use by another program"), std::wstring::npos);
    }
    EXPECT_EQ(ReadFileText(path), old);
}
