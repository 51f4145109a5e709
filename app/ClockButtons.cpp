#include "app/ClockButtons.h"

#include "app/ClockPanels.h"
#include "platform/Subclass.h"
#include "recorder/ScorletGame.h"
#include "resources/resource.h"

namespace {

// By way of the window, whose procedure ends all exceptions.
LRESULT CALLBACK Procedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR form) {
    const bool isClock = PlaceOf(static_cast<int>(id)).Pair == cmdClock;
    const auto act = [&](WPARAM key) -> LRESULT {
        return SendMessageW(reinterpret_cast<HWND>(form), WM_BUTTONKEY, key, static_cast<LPARAM>(id));
    };
    switch (message) {
        case WM_GETDLGCODE: {
            // All characters, Enter before the dialog keys take it, and the arrows, which would move the focus away.
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool enter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
            return DefSubclassProc(button, message, wParam, lParam) | DLGC_WANTCHARS | DLGC_WANTARROWS |
                   (enter ? DLGC_WANTMESSAGE : 0);
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
    return DefSubclassProc(button, message, wParam, lParam);
}

}  // namespace

void ActOnPress(HWND button, HWND form) {
    Subclass<Procedure>(button, form, static_cast<UINT_PTR>(GetDlgCtrlID(button)));
}
