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
    try {
        file.Save(settings);
        ADD_FAILURE() << "saved";
    } catch (const SystemError& error) {
        EXPECT_EQ(error.Code(), DWORD{ERROR_ACCESS_DENIED});
        EXPECT_EQ(error.Thing(), path);
    }
    EXPECT_FALSE(Exists(path + L".new"));
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);

    settings.PlayerNames[White] = std::string(285, 'a');
    EXPECT_THROW(file.Save(settings), RunTimeError);
    EXPECT_EQ(ReadFileText(path), old);
}
