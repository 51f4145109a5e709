#include "recorder/MoveField.h"

#include "platform/Subclass.h"

#include <commctrl.h>

void MoveField::Create(UINT message) {
    endMessage = message;
    const HWND field = form.AddControl(WC_EDITW, txtMove, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL);
    form.AddControl(WC_BUTTONW, cmdOK, WS_TABSTOP | BS_PUSHBUTTON);
    Subclass<Procedure>(field, this);
    edit.Attach();
    toolTips.Create();
}

void MoveField::Show(const std::wstring& text) {
    const HWND field = form.Control(txtMove);
    typed.Begin(text);
    SetWindowTextW(field, text.c_str());
    form.SetVisible(txtMove, true);
    form.SetVisible(cmdOK, true);
    SetFocus(field);
    SendMessageW(field, EM_SETSEL, 0, -1);
}

void MoveField::Hide() {
    form.SetVisible(txtMove, false);
    form.SetVisible(cmdOK, false);
}

std::wstring MoveField::Text() const { return form.Text(txtMove); }

void MoveField::OnChange() {
    edit.OnChange();
    toolTips.Set(txtMove, typed.LastGood());
}

LRESULT CALLBACK MoveField::Procedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR self) {
    auto& moveField = *reinterpret_cast<MoveField*>(self);
    const bool ends = wParam == VK_RETURN || wParam == VK_ESCAPE;
    switch (message) {
        case WM_GETDLGCODE: {
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool own =
                key && key->message == WM_KEYDOWN && (key->wParam == VK_RETURN || key->wParam == VK_ESCAPE);
            return DefSubclassProc(field, message, wParam, lParam) | (own ? DLGC_WANTMESSAGE : 0);
        }
        case WM_KEYDOWN:
            if (ends) return SendMessageW(moveField.form.Window(), moveField.endMessage, wParam == VK_RETURN, 0);
            break;
        case WM_CHAR:
            if (ends) return 0;
            break;
        default: break;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}
