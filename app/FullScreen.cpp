#include "app/FullScreen.h"

void FullScreen::Begin(HWND window) {
    before.length = sizeof(before);
    GetWindowPlacement(window, &before);
    menu = GetMenu(window);
    style = GetWindowLongPtrW(window, GWL_STYLE);
    on = true;
    SetMenu(window, nullptr);
    SetWindowLongPtrW(window, GWL_STYLE, style & ~LONG_PTR{WS_OVERLAPPEDWINDOW | WS_MAXIMIZE});
    Fill(window);
}

void FullScreen::End(HWND window) {
    on = false;
    SetWindowLongPtrW(window, GWL_STYLE, style);
    SetMenu(window, menu);
    SetWindowPlacement(window, &before);
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_FRAMECHANGED);
}

void FullScreen::Fill(HWND window) const {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& screen = monitor.rcMonitor;
    SetWindowPos(window, HWND_TOP, screen.left, screen.top, screen.right - screen.left, screen.bottom - screen.top,
                 SWP_NOOWNERZORDER | SWP_FRAMECHANGED);
}

void FullScreen::ShowMenu(HWND window, bool shown) const {
    if (on && shown != (GetMenu(window) != nullptr)) SetMenu(window, shown ? menu : nullptr);
}

void FullScreen::OnMouseMove(HWND window, int y) const {
    // Below the menu the pointer is in the client area again.
    if (on) ShowMenu(window, y <= 0 && !GetMenu(window));
}
