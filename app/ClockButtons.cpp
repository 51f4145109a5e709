#include "app/ClockButtons.h"

#include "app/ClockPanels.h"
#include "recorder/ScorletGame.h"
#include "resources/resource.h"

namespace {

// By way of the window, whose procedure ends all exceptions.
LRESULT CALLBACK Procedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam) {
    const int id = GetDlgCtrlID(button);
    const bool isClock = PlaceOf(id).Pair == cmdClock;
    const auto act = [&](WPARAM key) -> LRESULT { return SendMessageW(GetParent(button), WM_BUTTONKEY, key, id); };
    const auto passOn = [&] {
        const auto previous = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(button, GWLP_USERDATA));
        return CallWindowProcW(previous, button, message, wParam, lParam);
    };
    switch (message) {
        case WM_GETDLGCODE: {
            // All characters, Enter before the dialog keys take it, and the arrows, which would move the focus away.
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool enter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
            return passOn() | DLGC_WANTCHARS | DLGC_WANTARROWS | (enter ? DLGC_WANTMESSAGE : 0);
        }
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: return act(0);
        case WM_KEYDOWN:
            if (wParam == VK_RETURN || (isClock && wParam == VK_SPACE))
                return HIWORD(lParam) & KF_REPEAT ? 0 : act(wParam);
            break;
        case WM_KEYUP:
            if (isClock && wParam == VK_SPACE) return 0;
            break;
        case WM_CHAR:
            if (IsPauseKey(wParam)) return act('p');
            break;
        default: break;
    }
    return passOn();
}

}  // namespace

void ActOnPress(HWND button) {
    // Not by the common controls, which would look up the subclass at each message.
    SetWindowLongPtrW(button, GWLP_USERDATA, GetWindowLongPtrW(button, GWLP_WNDPROC));
    SetWindowLongPtrW(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
}
