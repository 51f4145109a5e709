#include "app/Program.h"

#include <windows.h>

namespace {

// The program's folder can be written to by anyone who can reach the player's files, and a folder of downloads holds
// what came from anywhere: no library is taken from there. The function is missing from a Windows 7 without updates.
void LoadLibrariesFromSystemFolderOnly() {
    SetDllDirectoryW(L"");
    using Function = BOOL(WINAPI*)(DWORD);
    const auto setDefaultDllDirectories = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories")));
    if (setDefaultDllDirectories) setDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    LoadLibrariesFromSystemFolderOnly();
    return RunProgram();
}
