#pragma once

#include "platform/Form.h"
#include "recorder/BoardInput.h"
#include "recorder/ScorletPainter.h"
#include "resources/resource.h"

#include <array>
#include <optional>

constexpr int CellOf(Square square) { return picBoard + static_cast<int>(square); }
constexpr bool IsCell(int id) { return id > picBoard && id < picBoard + SquareIndexes && IsSquare(id - picBoard); }
constexpr bool IsCaptured(int id) { return id >= imgCapturedWQ && id < imgCapturedWQ + 2 * CapturedSlots; }

// The board and the captured pieces as the Scorlet shows them, with a control for each square and for each piece that
// can be captured. Keys of the board go to the form's window as WM_BOARDKEY and WM_BOARDCHARACTER, which answer whether
// they have been taken.
class ScorletBoard {
  public:
    // All must outlive the board.
    ScorletBoard(Form& form, const BoardInput& input, const ScorletPainter& painter)
        : form(form), input(input), painter(painter) {}

    // The squares and what is around them, then the captured pieces.
    void Create();
    void CreateCaptured() const;
    void Place(const ScorletLayout& layout);
    // Draws what has changed anew, and nothing else.
    void Show();
    // Draws the board and its squares at once, so that none of them waits for its turn.
    void DrawNow() const;
    // Draws one of its controls.
    void Draw(const DRAWITEMSTRUCT& item) const;

  private:
    // What the slot of a captured piece shows, and where.
    struct SlotLook {
        Box Place;
        bool Picked, Lifted;
        bool operator==(const SlotLook&) const = default;
    };

    void ShowCaptured();

    static LRESULT CALLBACK Procedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR self);

    Form& form;
    const BoardInput& input;
    const ScorletPainter& painter;
    ScorletLayout layout{};
    bool shownEarlier = false;
    std::array<std::optional<CellLook>, SquareIndexes> shownCells{};
    std::array<std::optional<SlotLook>, 2 * CapturedSlots> shownSlots{};  // none: hidden
};
