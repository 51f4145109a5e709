#pragma once

#include "platform/Form.h"
#include "recorder/BoardInput.h"
#include "recorder/DragPicture.h"
#include "recorder/ScorletLayout.h"
#include "recorder/ScorletPainter.h"

#include <optional>

// The mouse over the board and the captured pieces: where it is, and pieces that it drags. While a button is held on a
// piece the form's window has the capture; losing it puts the piece back.
class BoardMouse {
  public:
    // All must outlive the mouse. `layout` is that of the form at any time.
    BoardMouse(const Form& form, BoardInput& input, const ScorletPainter& painter, const ScorletLayout& layout)
        : form(form), input(input), painter(painter), layout(layout) {}

    // The button has gone down at a point of the window's client area, and `input` has been told of the click.
    void Press(POINT point);
    // The mouse has moved. Past the system's drag distance the piece comes along.
    void Move(POINT point);
    // The button has been released. Returns the written line if that has made a move.
    std::optional<ChosenLine> Release(POINT point);
    // The window has the capture no longer, for whatever reason.
    void CaptureLost();
    // Lets the picture go where the drag is over. To be called whenever `input` may have changed.
    void Follow();

  private:
    Square SquareAt(POINT point) const { return layout.SquareAt(static_cast<int>(point.x), static_cast<int>(point.y)); }

    const Form& form;
    BoardInput& input;
    const ScorletPainter& painter;
    const ScorletLayout& layout;
    std::optional<POINT> pressed;  // while the button is held
    bool dragging = false;
    DragPicture picture;
};
