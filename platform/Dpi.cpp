#include "platform/Dpi.h"

#include "platform/Handles.h"

int DpiOf(HWND window) {
    // Windows before 10 has one resolution for all screens, and no GetDpiForWindow. Static, to be looked up once.
    using Function = UINT(WINAPI*)(HWND);
    static const auto getDpiForWindow = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (getDpiForWindow && window) {
        if (const UINT dpi = getDpiForWindow(window)) return static_cast<int>(dpi);
    }
    return GetDeviceCaps(WindowDc(nullptr).Dc(), LOGPIXELSY);
}

RECT FrameOf(DWORD style, bool menu, int dpi) {
    // Since Windows 10 the frame has the resolution of the window's screen. Static, to be looked up once.
    using Function = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
    static const auto adjustForDpi = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "AdjustWindowRectExForDpi")));
    RECT frame{};
    if (!adjustForDpi || !adjustForDpi(&frame, style, menu, 0, static_cast<UINT>(dpi)))
        AdjustWindowRectEx(&frame, style, menu, 0);
    return frame;
}
