#pragma once

#include "platform/Form.h"

// An edit control of the Scorlet that Enter and Esc end.
class EntryField {
  public:
    // The form must outlive the field.
    EntryField(Form& form, int id) : form(form), id(id) {}

    // Makes the control, hidden. Enter and Esc send the form `endMessage` with 1 or 0 in wParam.
    void Create(UINT endMessage, DWORD style = 0);

    // Shows the field with that text and gives it the focus. Returns its window.
    HWND Show(const std::wstring& text) const;

  private:
    static LRESULT CALLBACK Procedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR subclass,
                                      DWORD_PTR self);

    Form& form;
    int id;
    UINT endMessage = 0;
};
