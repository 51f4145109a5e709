#include <windows.h>

// A library that somebody else has put beside the program: it marks that it was loaded.
extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void*) {
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    wchar_t path[MAX_PATH + 16];
    GetModuleFileNameW(library, path, MAX_PATH);
    lstrcatW(path, L".loaded");
    CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return TRUE;
}
