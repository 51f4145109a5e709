#pragma once

#include "platform/FilteredEdit.h"
#include "platform/ToolTips.h"
#include "recorder/EditedMove.h"
#include "recorder/EntryField.h"
#include "resources/resource.h"

#include <string>

// The field in which a written move is corrected, with its OK button. It lets in what EditedMove does; its tool tip
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
    Form& form;
    EntryField entry{form, txtMove};
    ToolTips toolTips;
    EditedMove edited;
    FilteredEdit edit{form, txtMove, [this](const std::wstring& text) { return edited.Changed(text); },
                      [this](wchar_t character, const std::wstring& text) { return edited.TakesKey(character, text); }};
};
