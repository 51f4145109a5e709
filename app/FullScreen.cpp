#include "app/FullScreen.h"

#include <utility>

void FullScreen::Begin() {
    const HWND window = form.Window();
    before.length = sizeof(before);
    GetWindowPlacement(window, &before);
    menu = GetMenu(window);
    style = GetWindowLongPtrW(window, GWL_STYLE);
    on = true;
    SetMenu(window, nullptr);
    SetWindowLongPtrW(window, GWL_STYLE, style & ~LONG_PTR{WS_OVERLAPPEDWINDOW | WS_MAXIMIZE});
    Fill();
}

bool FullScreen::End() {
    const HWND window = form.Window();
    on = false;
    SetWindowLongPtrW(window, GWL_STYLE, style);
    SetMenu(window, menu);
    SetWindowPlacement(window, &before);
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_FRAMECHANGED);
    return std::exchange(screenChanged, false);
}

void FullScreen::OnScreenChanged() {
    screenChanged = true;
    Fill();
}

void FullScreen::Fill() const {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(form.Window(), MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& screen = monitor.rcMonitor;
    SetWindowPos(form.Window(), HWND_TOP, screen.left, screen.top, screen.right - screen.left,
                 screen.bottom - screen.top, SWP_NOOWNERZORDER | SWP_FRAMECHANGED);
}

void FullScreen::ShowMenu(bool shown) const {
    if (on && shown != (GetMenu(form.Window()) != nullptr)) SetMenu(form.Window(), shown ? menu : nullptr);
}

void FullScreen::OnMouseMove(int y) const {
    // Below the menu the pointer is in the client area again.
    if (on) ShowMenu(y <= 0 && !GetMenu(form.Window()));
}
