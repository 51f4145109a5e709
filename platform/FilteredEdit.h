#pragma once

#include "platform/Form.h"

#include <functional>
#include <string>

// An edit control of a form that lets in only what it shall hold, however that comes.
class FilteredEdit {
  public:
    // Whether a character may be typed while the field holds the text. Codes below the blank, which are commands such
    // as copying and pasting, are not asked about.
    using TakesKey = std::function<bool(wchar_t character, const std::wstring& text)>;
    // What the field shall hold after it has come to hold the text, by typing, pasting or otherwise.
    using Changed = std::function<std::wstring(const std::wstring& text)>;

    // The form must outlive the field.
    FilteredEdit(const Form& form, int id, Changed changed, TakesKey takesKey = nullptr)
        : form(form), id(id), changed(std::move(changed)), takesKey(std::move(takesKey)) {}

    // To be called once the form has its control, and at each notification that the control has changed.
    void Attach();
    void OnChange();

  private:
    static LRESULT CALLBACK Procedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR subclass,
                                      DWORD_PTR self);

    const Form& form;
    int id;
    Changed changed;
    TakesKey takesKey;
    bool settingText = false;
};
