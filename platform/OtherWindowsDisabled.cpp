#include "platform/OtherWindowsDisabled.h"

OtherWindowsDisabled::OtherWindowsDisabled(HWND owner) : owner(owner) {
    EnumThreadWindows(GetCurrentThreadId(), Disable, reinterpret_cast<LPARAM>(this));
}

OtherWindowsDisabled::~OtherWindowsDisabled() {
    for (HWND window : disabled) EnableWindow(window, TRUE);
}

BOOL CALLBACK OtherWindowsDisabled::Disable(HWND window, LPARAM self) {
    auto& scope = *reinterpret_cast<OtherWindowsDisabled*>(self);
    if (window != scope.owner && IsWindowVisible(window) && IsWindowEnabled(window)) {
        EnableWindow(window, FALSE);
        scope.disabled.push_back(window);
    }
    return TRUE;
}
