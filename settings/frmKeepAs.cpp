#include "settings/frmKeepAs.h"

#include "platform/Ansi.h"
#include "resources/resource.h"
#include "settings/TimeControlText.h"

#include <array>

namespace {

constexpr Extent Size{360, 136};

constexpr std::array KeepAsItems{
    DialogItem{fraTimesName, WC_BUTTONW, BS_GROUPBOX, {12, 12, 336, 70}},
    DialogItem{lblTimesName, WC_STATICW, SS_NOPREFIX, {28, 24, 304, 18}, TextId::TimeControlName},
    DialogItem{txtTimesName, WC_EDITW, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, {28, 45, 304, DialogItem::FieldHeight}},
    DialogItem{cmdOK, WC_BUTTONW, WS_TABSTOP | BS_DEFPUSHBUTTON, {130, 94, 104, 30}, TextId::ButtonSetupOk},
    DialogItem{cmdCancel, WC_BUTTONW, WS_TABSTOP | BS_PUSHBUTTON, {244, 94, 104, 30}, TextId::ButtonCancel},
};

}  // namespace

void frmKeepAs::Open(HWND owner, const std::wstring& name) {
    Create(owner, L"frmKeepAs", TextId::KeepAsTitle, L"AAATORVANIX", Size, KeepAsItems);
    SendMessageW(Control(txtTimesName), EM_SETLIMITTEXT, TimeControlText::LongestName, 0);
    SetText(txtTimesName, name);
    SendMessageW(Control(txtTimesName), EM_SETSEL, 0, -1);
}

LRESULT frmKeepAs::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_COMMAND) return Dialog::Handle(message, wParam, lParam);
    if (LOWORD(wParam) == cmdOK) OnOk();
    if (LOWORD(wParam) == cmdCancel) Close();
    return 0;
}

int frmKeepAs::DefaultButton() const { return cmdOK; }

std::wstring frmKeepAs::SpokenName(int id) const {
    return id == fraTimesName ? captions(TextId::KeepAsTitle) : std::wstring();
}

void frmKeepAs::OnOk() {
    std::wstring name = Text(txtTimesName);
    name.erase(0, std::min(name.find_first_not_of(L' '), name.size()));
    name.resize(name.find_last_not_of(L' ') + 1);
    if (!TimeControlText::IsName(ToUtf8(name)))
        return messageBoxes.Inform(Window(), texts(TextId::TimeControlNameFault), TextId::KeepAsTitle);
    chosen = name;
    Close();
}
