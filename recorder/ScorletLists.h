#pragma once

#include "platform/Form.h"
#include "recorder/Recorder.h"

#include <optional>

// The two move lists as the Scorlet shows them. They scroll as one, so that the moves of one number are always side by
// side.
class ScorletLists {
  public:
    // Both must outlive the lists.
    ScorletLists(Form& form, const Recorder& recorder) : form(form), recorder(recorder) {}

    void Create();

    // Fills both lists anew and shows the last moves. A line that was chosen stays chosen.
    void Show() const;
    // Scrolls to the last row, whatever is chosen.
    void ShowLast() const;
    // Chooses a line and shows it.
    void Choose(const ChosenLine& line);
    void ChooseNone() const;
    // The chosen line of a list; no value where that holds no entry.
    std::optional<size_t> Chosen(Side side) const;
    // Those of both lists as they show them, which may have been before the last change of the record.
    ChosenLines Chosen() const;
    // Goes from the chosen line of the list that has the focus to the half-move after it, or with false before it: it
    // is chosen, and its list has the focus. Returns its list; no value where there is none.
    std::optional<Side> Step(bool forward);
    // The players have chosen a row: of the empty ones, that is the last entry.
    void OnChoice(Side side);
    // Draws a row, with its number in both lists. Of two chosen lines the one that was chosen last stands out.
    void Draw(const DRAWITEMSTRUCT& item, Side side) const;

  private:
    HWND List(Side side) const;
    void Fill(Side side, size_t rows) const;
    size_t Rows() const;
    size_t RowsThatFit() const;
    void Follow(HWND list) const;
    void Prefer(Side side);

    static LRESULT CALLBACK Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR self);

    Form& form;
    const Recorder& recorder;
    Side latest = White;  // the list in which a line was chosen last
};
