#pragma once

#include "platform/Form.h"

#include <commctrl.h>

#include <string>

// The tool tips of a form.
class ToolTips {
  public:
    // The form must outlive them.
    explicit ToolTips(const Form& form) : form(form) {}

    // Makes the tip window; the form's own window must exist.
    void Create();

    // Sets the tip of a control that takes the mouse itself; a static text does so with SS_NOTIFY.
    void Set(int id, std::wstring text) const;

    // Sets the tip of a part of the form's window, for controls that leave the mouse to it. `id` tells parts apart. The
    // message loop relays the mouse messages that show these tips: if the tip window watched the form by itself, each
    // of the form's messages would take longer.
    void SetArea(int id, const RECT& area, std::wstring text) const;
    void Relay(MSG& message) const;

  private:
    void Replace(TOOLINFOW& tool) const;

    const Form& form;
    HWND window = nullptr;
};
