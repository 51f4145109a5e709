#include "clock/modEnvironment.h"

#include "platform/Ansi.h"

#include <array>

namespace modEnvironment {

namespace {

// Event codes of the log.
constexpr int32_t StartedCode = 43528;
constexpr int32_t UnknownWindowsCode = 43716;

std::string FindVersionName() {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof(version);
    if (!GetVersionExA(&version)) return "NONE";
    return WindowsVersionName(version.dwPlatformId, version.dwMajorVersion, version.dwMinorVersion);
}

std::wstring FindFolder(UINT(WINAPI* find)(LPSTR, UINT)) {
    std::array<char, 256> buffer{};
    const UINT length = find(buffer.data(), 255);
    // A length past the buffer says what would be needed; nothing was written then.
    return length < 255 ? FromAnsi({buffer.data(), length}) + L"\\" : L"\\";
}

std::wstring FindProgram(const clsFileSystem& fileSystem, const Environment& environment, const wchar_t* name) {
    for (const std::wstring& folder : {environment.WindowsFolder, environment.SystemFolder}) {
        if (fileSystem.FileExists(folder + name).result) return folder + name;
    }
    return {};
}

void EnsureLogFolder(clsFileSystem& fileSystem, const Environment& environment) {
    // Where the system refuses it the log stays silent.
    if (!fileSystem.FolderExists(environment.LogFilesFolder).result)
        fileSystem.CreateFolder(environment.LogFilesFolder);
    fileSystem.SetLogFolder(environment.LogFilesFolder);
}

}  // namespace

std::wstring FindProgramFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return path.substr(0, path.rfind(L'\\') + 1);
}

Environment Establish(clsFileSystem& fileSystem, const Texts& texts) {
    Environment environment;
    environment.ProductTitle = texts(TextId::ProductTitle);
    environment.OsName = OsNameOf(FindVersionName());
    environment.appearance = AppearanceOf(environment.OsName);

    environment.ProgramFolder = FindProgramFolder();
    environment.ImagesFolder = environment.ProgramFolder + L"images\\";
    environment.SavedGamesFolder = environment.ProgramFolder + L"SavedGames\\";
    environment.DataFolder = environment.ProgramFolder + L"Data\\";

    environment.WindowsFolder = FindFolder(GetWindowsDirectoryA);
    environment.SystemFolder = FindFolder(GetSystemDirectoryA);
    environment.SystemDrive = environment.SystemFolder.substr(0, 3);
    environment.LogFilesFolder = environment.SystemFolder + L"LogFiles\\";
    EnsureLogFolder(fileSystem, environment);
    fileSystem.WriteLog(StartedCode, 0, FromAnsi(environment.OsName));
    if (environment.OsName == "NONE") fileSystem.WriteLog(UnknownWindowsCode, 0, FromAnsi(environment.OsName));

    environment.NotepadPath = FindProgram(fileSystem, environment, L"Notepad.exe");
    if (!fileSystem.FolderExists(environment.SavedGamesFolder).result)
        environment.savedGamesStatus = fileSystem.CreateFolder(environment.SavedGamesFolder);
    environment.HelpViewerPath = FindProgram(fileSystem, environment, L"hh.exe");
    return environment;
}

}  // namespace modEnvironment
