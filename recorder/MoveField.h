#pragma once

#include "platform/Form.h"
#include "platform/ToolTips.h"
#include "recorder/TypedMove.h"

#include <string>

// The field in which a written move is corrected, with its OK button. It lets in what TypedMove does; its tool tip
// carries the last good text.
class MoveField {
  public:
    // The form must outlive the field.
    explicit MoveField(Form& form) : form(form), toolTips(form) {}

    // Makes the controls, hidden. Enter and Esc in the field send the form `endMessage` with 1 or 0 in wParam.
    void Create(UINT endMessage);

    void Show(const std::wstring& text);
    void Hide();
    std::wstring Text() const;

    // The field's notification of a change.
    void OnChange();

  private:
    bool TakesCharacter(wchar_t character);
    static LRESULT CALLBACK Procedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR self);

    Form& form;
    ToolTips toolTips;
    TypedMove typed;
    UINT endMessage = 0;
    bool settingText = false;
};
