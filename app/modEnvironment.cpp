#include "app/modEnvironment.h"

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
        if (fileSystem.FileExists(folder + name).Result) return folder + name;
    }
    return {};
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

HRESULT EnsureFolder(const clsFileSystem& fileSystem, const std::wstring& folder) {
    const Outcome<bool> exists = fileSystem.FolderExists(folder);
    if (exists.Result) return S_OK;
    if (SUCCEEDED(exists.Status)) return fileSystem.CreateFolder(folder);
    // No scripting runtime on this system: ask the system itself.
    if (CreateDirectoryW(folder.c_str(), nullptr)) return S_OK;
    const DWORD code = GetLastError();
    const DWORD attributes = GetFileAttributesW(folder.c_str());
    const bool isFolder = attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_DIRECTORY;
    return isFolder ? S_OK : HRESULT_FROM_WIN32(code);
}

Environment Establish(clsFileSystem& fileSystem, const Texts& texts) {
    Environment environment;
    environment.ProductTitle = texts(TextId::ProductTitle);
    environment.OsName = OsNameOf(FindVersionName());
    environment.Look = AppearanceOf(environment.OsName);

    environment.ProgramFolder = FindProgramFolder();
    environment.ImagesFolder = environment.ProgramFolder + L"images\\";
    environment.SavedGamesFolder = environment.ProgramFolder + L"SavedGames\\";
    environment.DataFolder = environment.ProgramFolder + L"Data\\";

    environment.WindowsFolder = FindFolder(GetWindowsDirectoryA);
    environment.SystemFolder = FindFolder(GetSystemDirectoryA);
    environment.SystemDrive = environment.SystemFolder.substr(0, 3);
    environment.LogFilesFolder = environment.SystemFolder + L"LogFiles\\";
    // Where the system refuses the folder the log stays silent.
    EnsureFolder(fileSystem, environment.LogFilesFolder);
    fileSystem.SetLogFolder(environment.LogFilesFolder);
    fileSystem.WriteLog(StartedCode, 0, FromAnsi(environment.OsName));
    if (environment.OsName == "NONE") fileSystem.WriteLog(UnknownWindowsCode, 0, FromAnsi(environment.OsName));

    environment.NotepadPath = FindProgram(fileSystem, environment, L"Notepad.exe");
    environment.SavedGamesStatus = EnsureFolder(fileSystem, environment.SavedGamesFolder);
    environment.HelpViewerPath = FindProgram(fileSystem, environment, L"hh.exe");
    return environment;
}

}  // namespace modEnvironment
