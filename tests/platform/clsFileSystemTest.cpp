#include "platform/clsFileSystem.h"

#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include <algorithm>
#include <ctime>

namespace {

class clsFileSystemTest : public testing::Test {
  protected:
    const HRESULT library = CoInitialize(nullptr);
    TestFolder folder;
    clsFileSystem fileSystem;
};

}  // namespace

TEST_F(clsFileSystemTest, FoldersAndFiles) {
    const std::wstring sub = folder.Path() + L"sub";
    EXPECT_FALSE(fileSystem.FolderExists(sub).Result);
    EXPECT_EQ(fileSystem.CreateFolder(sub), S_OK);
    EXPECT_TRUE(fileSystem.FolderExists(sub).Result);
    EXPECT_TRUE(FAILED(fileSystem.CreateFolder(sub))) << "there already";
    WriteFileText(folder.Path() + L"b.txt", "x");
    WriteFileText(folder.Path() + L"a.txt", "x");
    EXPECT_TRUE(fileSystem.FileExists(folder.Path() + L"a.txt").Result);
    EXPECT_FALSE(fileSystem.FileExists(sub).Result) << "a folder is no file";
    auto files = fileSystem.FileNames(folder.Path());
    std::sort(files.Result.begin(), files.Result.end());
    EXPECT_EQ(files.Result, (std::vector<std::wstring>{L"a.txt", L"b.txt"}));
    EXPECT_EQ(fileSystem.SubfolderNames(folder.Path()).Result, std::vector<std::wstring>{L"sub"});
    EXPECT_TRUE(FAILED(fileSystem.FileNames(folder.Path() + L"none").Status));
    EXPECT_EQ(fileSystem.DeleteFolder(sub), S_OK);
    EXPECT_FALSE(Exists(sub));
    EXPECT_TRUE(fileSystem.DriveExists(L"C:").Result);
    EXPECT_FALSE(fileSystem.DriveExists(L"Q:").Result);
}

TEST_F(clsFileSystemTest, DatesOrTheReasonWhyThereIsNone) {
    WriteFileText(folder.Path() + L"a.txt", "x");
    constexpr DATE unixTime = 25569;  // 1970 in days of this kind
    const DATE today = unixTime + static_cast<DATE>(std::time(nullptr)) / (24 * 3600);
    const auto date = fileSystem.FileDate(folder.Path() + L"a.txt", clsFileSystem::DateKind::LastModified);
    ASSERT_EQ(date.Status, S_OK);
    EXPECT_NEAR(date.Result, today, 1.1) << "days";
    EXPECT_TRUE(FAILED(fileSystem.FileDate(folder.Path() + L"none", clsFileSystem::DateKind::Created).Status));
    // Not every system's object knows the dates of folders; what it cannot tell it says in the status.
    const auto folderDate = fileSystem.FolderDate(folder.Path(), clsFileSystem::DateKind::Created);
    EXPECT_TRUE(FAILED(folderDate.Status) || folderDate.Result > today - 1.1);
}

TEST_F(clsFileSystemTest, LogTakesItsStatusAndTextAndStaysSilentWithoutItsFolder) {
    fileSystem.SetLogFolder(folder.Path() + L"none\\");
    EXPECT_EQ(fileSystem.WriteLog(1), S_OK);
    EXPECT_FALSE(Exists(folder.Path() + L"none"));

    fileSystem.SetLogFolder(folder.Path());
    EXPECT_EQ(fileSystem.WriteLog(22677, -5, L"Data"), S_OK);
    EXPECT_EQ(fileSystem.LastMessage(), L"22677--5-Data");
    EXPECT_NE(ReadFileText(folder.Path() + L"TORVANIX.log").find("#Message: 22677--5-Data\r\n#\r\n"),
              std::string::npos);
}
