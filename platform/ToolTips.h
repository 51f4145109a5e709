#pragma once

#include "platform/Form.h"

#include <commctrl.h>

#include <map>
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
    // of the form's messages would take longer. The tip window is made when the mouse first rests on such a part.
    void SetArea(int id, const RECT& area, std::wstring text);
    void Relay(const MSG& message);

  private:
    struct Area {
        RECT Place;  // in the form's client area
        std::wstring Text;
    };

    void ShowArea(int id);
    void Replace(TOOLINFOW& tool) const;

    const Form& form;
    HWND window = nullptr;
    std::map<int, Area> areas;
};
