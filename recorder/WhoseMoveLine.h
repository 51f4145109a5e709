#pragma once

#include "platform/Colours.h"
#include "platform/Form.h"
#include "recorder/WhoseMove.h"

// The line of the Scorlet that says which move it expects, and that stands out when it warns.
class WhoseMoveLine {
  public:
    // The form must outlive the line.
    explicit WhoseMoveLine(Form& form) : form(form) {}

    void Create();
    void Show(const Texts& texts, const WhoseMove& next);

    // Sets the colour of its type and returns its ground, null while it looks like any other label.
    HBRUSH Colours(HDC dc) const;

  private:
    Form& form;
    bool warns = false;
    const Brush ground{Warning};

    static constexpr Colour Warning{RGB(0xFF, 0xDF, 0x80), COLOR_HIGHLIGHT};
    static constexpr Colour WarningInk{RGB(0x40, 0x20, 0x00), COLOR_HIGHLIGHTTEXT};
};
