#include "recorder/EntryField.h"

#include "platform/Subclass.h"
#include "recorder/EndingKeys.h"

void EntryField::Create(UINT message, DWORD style) {
    endMessage = message;
    const HWND field = form.AddControl(WC_EDITW, id, style | WS_BORDER | ES_AUTOHSCROLL);
    Subclass<Procedure>(field, this);
}

HWND EntryField::Show(const std::wstring& text) const {
    const HWND field = form.Control(id);
    SetWindowTextW(field, text.c_str());
    form.SetVisible(id, true);
    SetFocus(field);
    return field;
}

LRESULT CALLBACK EntryField::Procedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                       DWORD_PTR self) {
    const auto& entry = *reinterpret_cast<const EntryField*>(self);
    switch (message) {
        case WM_GETDLGCODE: return DefSubclassProc(field, message, wParam, lParam) | WantsEndingKeys(lParam);
        case WM_KEYDOWN:
            if (IsEndingKey(wParam)) return SendMessageW(entry.form.Window(), entry.endMessage, wParam == VK_RETURN, 0);
            break;
        case WM_CHAR:
            if (IsEndingKey(wParam)) return 0;
            break;
        default: break;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}
