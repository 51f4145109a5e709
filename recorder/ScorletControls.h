#pragma once

#include "recorder/EntryEditor.h"
#include "recorder/PromotionPicker.h"
#include "recorder/SayList.h"
#include "recorder/ScorletBoard.h"
#include "recorder/ScorletLists.h"
#include "recorder/TypedMoveField.h"
#include "recorder/WhoseMoveLine.h"

#include <string>

// All that the Scorlet window shows: which controls, where they are, how they are drawn and what screen readers say of
// them. What the players do with them is the form's.
class ScorletControls {
  private:
    // What the fields below are made with, so it comes first.
    Form& form;
    Recorder& recorder;
    const BoardInput& input;

  public:
    // All must outlive the controls.
    ScorletControls(Form& form, Recorder& recorder, const BoardInput& input)
        : form(form), recorder(recorder), input(input) {}

    // Throws SystemError.
    void Create();
    void ApplyTexts(const Texts& texts) const;
    // For a client area of that size, in pixels.
    void Place(int width, int height, int dpi, bool turned);

    // Draws an owner-drawn control.
    void Draw(const DRAWITEMSTRUCT& item) const;
    // Sets the colour of a label's type and returns its ground.
    HBRUSH Colours(HDC dc, int id) const;

    // As Form has them.
    std::wstring SpokenName(const Texts& texts, int id) const;
    std::wstring SpokenPart(int id, int part) const;

    ScorletLayout Layout{};
    ScorletPainter Painter;
    TypedMoveField Typing{form};
    ScorletBoard Board{form, input, Painter};
    SayList Say{form};
    WhoseMoveLine WhoseMove{form, Painter};
    ScorletLists Lists{form, recorder};
    EntryEditor Editor{form, recorder};
    PromotionPicker Picker{form, recorder, input, Painter};
};
