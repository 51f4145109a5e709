#pragma once

#include "platform/Form.h"
#include "recorder/ScorletPainter.h"
#include "recorder/WhoseMove.h"

#include <array>
#include <optional>
#include <string>

// The look back at an entry of the lists.
struct LookBack {
    Side List;
    std::string Entry;  // as it is written, with its number
    bool Known;         // the position after it
    std::array<std::optional<int32_t>, 2> Times;
};

// The line of the Scorlet that says which move it expects, and that stands out when it warns.
class WhoseMoveLine {
  public:
    // Both must outlive the line.
    WhoseMoveLine(Form& form, const ScorletPainter& painter) : form(form), painter(painter) {}

    void Create();
    void Show(const Texts& texts, const WhoseMove& next);
    // That the position after an entry of that side is shown, with what the faces showed in seconds, where both are
    // known; or that it is not known.
    void ShowLookBack(const Texts& texts, const LookBack& lookBack);
    void Draw(const DRAWITEMSTRUCT& item) const;

  private:
    void ShowText(const std::wstring& text, LineLook newLook, Side newSide);

    Form& form;
    const ScorletPainter& painter;
    LineLook look = LineLook::Expected;
    Side side = White;
};
