#include "recorder/MoveField.h"

#include "platform/Subclass.h"
#include "resources/resource.h"

#include <commctrl.h>

void MoveField::Create(UINT message) {
    endMessage = message;
    const HWND field = form.AddControl(WC_EDITW, txtMove, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL);
    form.AddControl(WC_BUTTONW, cmdOK, WS_TABSTOP | BS_PUSHBUTTON);
    Subclass<Procedure>(field, this);
    toolTips.Create();
}

void MoveField::Show(const std::wstring& text) {
    const HWND field = form.Control(txtMove);
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
    if (settingText) return;
    const std::wstring text = Text(), changed = typed.Changed(text);
    if (changed != text) {
        settingText = true;
        SetWindowTextW(form.Control(txtMove), changed.c_str());
        SendMessageW(form.Control(txtMove), EM_SETSEL, changed.size(), static_cast<LPARAM>(changed.size()));
        settingText = false;
    }
    toolTips.Set(txtMove, typed.LastGood());
}

bool MoveField::TakesCharacter(wchar_t character) {
    if (character == VK_RETURN || character == VK_ESCAPE) return false;
    // Codes below the blank are commands such as copying and pasting.
    return character < L' ' || typed.TakesKey(character, Text());
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
            if (!moveField.TakesCharacter(static_cast<wchar_t>(wParam))) return 0;
            break;
        default: break;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}
