#pragma once

#include "platform/Form.h"

#include <commctrl.h>

#include <string>

// The tool tips of a form.
class ToolTips {
  public:
    // The form must outlive them.
    explicit ToolTips(const Form& form) : form(form) {}

    // Makes the tip window; the form's must exist.
    void Create();

    // Sets the tip of a control that takes the mouse itself; a static text does with SS_NOTIFY.
    void Set(int id, std::wstring text) const;

    // Sets the tip of a part of the form's window, for controls that leave the mouse to it. `id` tells parts apart.
    // Areas are shown by what the message loop relays: a window that the tip watched by itself would take longer over
    // each of its messages.
    void SetArea(int id, const RECT& area, std::wstring text) const;
    void Relay(MSG& message) const;

  private:
    void Replace(TOOLINFOW& tool) const;

    const Form& form;
    HWND window = nullptr;
};
