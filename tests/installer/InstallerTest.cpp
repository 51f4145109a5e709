#include "platform/Ansi.h"
#include "platform/Process.h"
#include "resources/Version.h"
#include "tests/desktop/Steps.h"

#include <gtest/gtest.h>
#include <shlobj.h>

// The installer and its uninstaller, in the Wine prefix of a fresh user.

namespace {

constexpr wchar_t UninstallKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\TORVANIX";

std::wstring KnownFolder(int folder) {
    wchar_t path[MAX_PATH];
    SHGetFolderPathW(nullptr, folder, nullptr, SHGFP_TYPE_CURRENT, path);
    return std::wstring(path) + L"\\";
}

std::wstring UserFolder() { return KnownFolder(CSIDL_LOCAL_APPDATA) + L"Programs\\TORVANIX\\"; }
std::wstring StartMenuEntry() { return KnownFolder(CSIDL_PROGRAMS) + L"TORVANIX.lnk"; }

// A value of the entry in the list of installed programs; empty where there is none.
std::wstring Listed(const wchar_t* value) {
    wchar_t text[MAX_PATH * 2] = L"";
    DWORD size = sizeof(text);
    RegGetValueW(HKEY_CURRENT_USER, UninstallKey, value, RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
}

std::wstring TargetOf(const std::wstring& shortcut) {
    CoInitialize(nullptr);
    IShellLinkW* link = nullptr;
    IPersistFile* file = nullptr;
    wchar_t path[MAX_PATH] = L"";
    if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&link)))) {
        if (SUCCEEDED(link->QueryInterface(IID_PPV_ARGS(&file)))) {
            if (SUCCEEDED(file->Load(shortcut.c_str(), STGM_READ))) link->GetPath(path, MAX_PATH, nullptr, 0);
            file->Release();
        }
        link->Release();
    }
    CoUninitialize();
    return path;
}

// Runs a program to its end; its exit code.
DWORD Execute(const std::wstring& commandLine) {
    const UniqueFile process = StartProgram({}, commandLine);
    DWORD code = 0;
    if (WaitForSingleObject(process.get(), 30000) != WAIT_OBJECT_0) TerminateProcess(process.get(), 98);
    GetExitCodeProcess(process.get(), &code);
    return code;
}

// The installer in dist/, of the version that the tests are built with.
DWORD Install(const std::wstring& parameters = L"") {
    return Execute(L"\"" + BuildFolder() + L"..\\..\\dist\\TORVANIX-" + FromAnsi(TORVANIX_VERSION) +
                   L"-setup.exe\" /S" + parameters);
}

// The uninstaller goes on as a copy of itself, since it deletes its own file, so its end is seen by what it does last.
void StartUninstalling(const std::wstring& folder, const wchar_t* parameters) {
    EXPECT_EQ(Execute(L"\"" + folder + L"Uninstall.exe\" " + parameters), 0u);
}
bool Uninstalled() {
    return Eventually([] { return Listed(L"DisplayName").empty(); });
}

// Puts a file where the program keeps its games: what it holds is no matter of the installer's.
void PutGame(const std::wstring& folder) {
    CreateDirectoryW((folder + L"SavedGames").c_str(), nullptr);
    WriteFileText(folder + L"SavedGames\\kept.bin", "a game");
}

void ExpectNoProgramFiles(const std::wstring& folder) {
    for (const wchar_t* name : {L"torvanix.exe", L"TORVANIX.chm", L"README.txt", L"Uninstall.exe"})
        EXPECT_FALSE(Exists(folder + name));
    EXPECT_FALSE(Exists(StartMenuEntry()));
}

void ExpectKept(const std::wstring& folder, const std::string& game = "a game") {
    EXPECT_EQ(ReadFileText(folder + L"SavedGames\\kept.bin"), game);
    EXPECT_TRUE(Exists(folder + L"Data\\TORVANIX.set"));
}

}  // namespace

TEST(InstallerTest, InstalledProgramIsPlayedAndItsGamesOutliveIt) {
    const std::wstring folder = UserFolder();
    ASSERT_EQ(Install(), 0u);
    EXPECT_EQ(ReadFileText(folder + L"torvanix.exe"), ReadFileText(BuildFolder() + L"torvanix.exe"));
    EXPECT_TRUE(Exists(folder + L"TORVANIX.chm") && Exists(folder + L"README.txt"));
    EXPECT_EQ(TargetOf(StartMenuEntry()), folder + L"torvanix.exe");
    EXPECT_EQ(Listed(L"DisplayVersion"), FromAnsi(TORVANIX_VERSION));
    EXPECT_EQ(Listed(L"UninstallString"), L"\"" + folder + L"Uninstall.exe\"");

    WriteSettingsFile(folder, QuietSettings());
    Steps steps;
    steps.Launch(folder + L"torvanix.exe");
    steps.Do("click cmdClock.B / turn 1 0 / click cmdPause.W / see cmdPause.W Resume / save kept");
    const std::string game = ReadFileText(folder + L"SavedGames\\kept.bin");
    EXPECT_FALSE(game.empty());
    EXPECT_EQ(Install(), 2u) << "over the running program";
    EXPECT_EQ(Execute(L"\"" + folder + L"Uninstall.exe\" /S _?=" + folder), 2u) << "while it runs";
    EXPECT_TRUE(Exists(folder + L"TORVANIX.chm") && !Listed(L"DisplayName").empty());
    steps.Do("close frmClock / ended 0");
    EXPECT_EQ(Install(), 0u) << "over itself";
    EXPECT_EQ(Listed(L"UninstallString"), L"\"" + folder + L"Uninstall.exe\"");
    ExpectKept(folder, game);

    StartUninstalling(folder, L"/S");
    EXPECT_TRUE(Uninstalled());
    ExpectNoProgramFiles(folder);
    ExpectKept(folder, game);
}

TEST(InstallerTest, UninstallingByHandKeepsTheGamesUnlessTheyAreTicked) {
    const std::wstring folder = UserFolder();
    ASSERT_EQ(Install(), 0u);
    WriteSettingsFile(folder, QuietSettings());
    PutGame(folder);
    StartUninstalling(folder, L"");
    HWND window = nullptr;
    ASSERT_TRUE(Eventually([&] { return (window = FindWindowW(nullptr, L"TORVANIX Uninstall ")) != nullptr; }));
    // Its one ordinary button is first Uninstall and at the end Close.
    const auto pressButton = [&] {
        const HWND button = GetDlgItem(window, IDOK);
        ASSERT_TRUE(Eventually([&] { return IsWindowVisible(button) && IsWindowEnabled(button); }));
        PostMessageW(button, BM_CLICK, 0, 0);
    };
    pressButton();
    EXPECT_TRUE(Uninstalled());
    pressButton();
    EXPECT_TRUE(Eventually([&] { return !IsWindow(window); }));
    ExpectNoProgramFiles(folder);
    ExpectKept(folder);
}

TEST(InstallerTest, RemovalSwitchTakesTheGamesAndNothingOfTheUsers) {
    const TestFolder parent;
    const std::wstring folder = parent.Path() + L"Şah ve Mat\\";
    ASSERT_EQ(Install(L" /D=" + folder.substr(0, folder.size() - 1)), 0u);
    EXPECT_EQ(Listed(L"InstallLocation") + L"\\", folder);
    WriteSettingsFile(folder, QuietSettings());
    PutGame(folder);
    WriteFileText(folder + L"Data\\notes.txt", "the user's own");
    StartUninstalling(folder, L"/S /REMOVEGAMES");
    EXPECT_TRUE(Uninstalled());
    ExpectNoProgramFiles(folder);
    EXPECT_FALSE(Exists(folder + L"SavedGames"));
    EXPECT_FALSE(Exists(folder + L"Data\\TORVANIX.set"));
    EXPECT_TRUE(Exists(folder + L"Data\\notes.txt"));

    ASSERT_EQ(Install(L" /D=" + folder.substr(0, folder.size() - 1)), 0u);
    DeleteFileW((folder + L"Data\\notes.txt").c_str());
    PutGame(folder);
    StartUninstalling(folder, L"/S /REMOVEGAMES");
    EXPECT_TRUE(Uninstalled());
    EXPECT_FALSE(Exists(folder)) << "the empty folder stays";
}

TEST(InstallerTest, FolderThatCannotBeWrittenToEndsInAnErrorCode) {
    // Wine shows the file system of the machine as Z:; into this folder not even root may write.
    EXPECT_EQ(Install(L" /D=Z:\\proc\\TORVANIX"), 2u);
    EXPECT_EQ(Listed(L"DisplayName"), L"");
    EXPECT_FALSE(Exists(StartMenuEntry()));
}

// uxtheme.dll is bound by the system's comctl32.dll. The script that runs the tests has Wine prefer what lies beside a
// program, as Windows does.
TEST(InstallerTest, LibrariesBesideTheProgramAreNotLoaded) {
    Steps steps;
    for (const wchar_t* name : {L"winmm.dll", L"uxtheme.dll"})
        ASSERT_TRUE(CopyFileW((BuildFolder() + L"planted.dll").c_str(), (steps.Folder() + name).c_str(), FALSE));
    // The planted library works: from another program's own folder it is loaded and leaves its mark.
    const HMODULE planted = LoadLibraryW((steps.Folder() + L"uxtheme.dll").c_str());
    ASSERT_TRUE(planted);
    FreeLibrary(planted);
    ASSERT_TRUE(DeleteFileW((steps.Folder() + L"uxtheme.dll.loaded").c_str()));
    // The button sound comes from one of the libraries.
    steps.Do("start ButtonSound=1 / click cmdClock.B / turn 1 0 / close frmClock / ended 0 / sh \"! ls *.loaded\"");
}
