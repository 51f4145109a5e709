#include "platform/Dpi.h"

int DpiOf(HWND window) {
    // Windows before 10 has one resolution for all screens, and no GetDpiForWindow.
    using Function = UINT(WINAPI*)(HWND);
    static const auto getDpiForWindow = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (getDpiForWindow && window) {
        if (const UINT dpi = getDpiForWindow(window)) return static_cast<int>(dpi);
    }
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}
