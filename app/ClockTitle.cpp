#include "app/ClockTitle.h"

#include "platform/Ansi.h"

namespace {

// "12:31" of "00:12:31", and "1:12:31" of "01:12:31".
std::wstring ShortTime(const std::string& face) {
    return FromAnsi(face.starts_with("00:") ? face.substr(3) : face.substr(face.starts_with('0')));
}

}  // namespace

void ClockTitle::Set(HWND window, const std::wstring& text) {
    title = text;
    Show(window);
}

void ClockTitle::Show(HWND window) const {
    std::wstring text = title;
    if (IsIconic(window) && commands.CurrentPhase() == Phase::Running) {
        const Side side = commands.Clock().TurnSide();
        text =
            texts.SideName(side) + L" " + ShortTime(commands.Clock().Face(side)) + L" - " + texts(TextId::ProductTitle);
    }
    wchar_t shown[256]{};
    GetWindowTextW(window, shown, 256);
    if (text != shown) SetWindowTextW(window, text.c_str());
}

void ClockTitle::Flash(HWND window) {
    FLASHWINFO flash{};
    flash.cbSize = sizeof(flash);
    flash.hwnd = window;
    flash.dwFlags = FLASHW_TRAY | FLASHW_TIMERNOFG;
    FlashWindowEx(&flash);
}
