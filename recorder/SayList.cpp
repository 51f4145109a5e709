#include "recorder/SayList.h"

#include "platform/Subclass.h"
#include "resources/resource.h"

#include <commctrl.h>

void SayList::Create() {
    const HWND list = form.AddControl(WC_COMBOBOXW, cmbSay, WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST);
    Subclass<Procedure>(list);
}

void SayList::Fill(const Texts& texts) const {
    SendMessageW(form.Control(cmbSay), CB_RESETCONTENT, 0, 0);
    for (int i = 0; i < 4; ++i) {
        SendMessageW(form.Control(cmbSay), CB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(texts(RowAfter(TextId::SayCheck, i)).c_str()));
    }
}

std::optional<Declaration> SayList::OnNotification(int notification) const {
    // An entry that was passed over and not chosen must not be shown as if it had been said.
    if (notification != CBN_SELENDOK && notification != CBN_SELENDCANCEL) return std::nullopt;
    const LRESULT chosen = SendMessageW(form.Control(cmbSay), CB_GETCURSEL, 0, 0);
    SendMessageW(form.Control(cmbSay), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    if (notification == CBN_SELENDCANCEL || chosen < 0) return std::nullopt;
    return static_cast<Declaration>(chosen);
}

// While the list is closed, a key must not declare the entries that it passes over: it opens the list.
LRESULT CALLBACK SayList::Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    // Asked for these only: the question is a message too.
    const bool isInput = message == WM_CHAR || message == WM_KEYDOWN || message == WM_MOUSEWHEEL;
    if (isInput && !SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0)) {
        if (message != WM_KEYDOWN) return 0;
        if (wParam != VK_TAB && wParam != VK_F4) {
            if (wParam == VK_DOWN || wParam == VK_UP) SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
            return 0;
        }
    }
    return DefSubclassProc(list, message, wParam, lParam);
}
