#include "recorder/MoveField.h"

#include <commctrl.h>

void MoveField::Create(UINT endMessage) {
    entry.Create(endMessage, WS_TABSTOP);
    form.AddControl(WC_BUTTONW, cmdOK, WS_TABSTOP | BS_PUSHBUTTON);
    edit.Attach();
    toolTips.Create();
}

void MoveField::Show(const std::wstring& text) {
    edited.Begin(text);
    form.SetVisible(cmdOK, true);
    SendMessageW(entry.Show(text), EM_SETSEL, 0, -1);
}

void MoveField::Hide() {
    form.SetVisible(txtMove, false);
    form.SetVisible(cmdOK, false);
}

std::wstring MoveField::Text() const { return form.Text(txtMove); }

void MoveField::OnChange() {
    edit.OnChange();
    toolTips.Set(txtMove, edited.LastGood());
}
