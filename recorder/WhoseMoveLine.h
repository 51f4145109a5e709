#pragma once

#include "platform/Form.h"
#include "recorder/ScorletPainter.h"
#include "recorder/WhoseMove.h"

// The line of the Scorlet that says which move it expects, and that stands out when it warns.
class WhoseMoveLine {
  public:
    // Both must outlive the line.
    WhoseMoveLine(Form& form, const ScorletPainter& painter) : form(form), painter(painter) {}

    void Create();
    void Show(const Texts& texts, const WhoseMove& next);
    void Draw(const DRAWITEMSTRUCT& item) const;

  private:
    void ShowText(const std::wstring& text, LineLook newLook, Side newSide);

    Form& form;
    const ScorletPainter& painter;
    LineLook look = LineLook::Expected;
    Side side = White;
};
