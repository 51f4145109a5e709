#pragma once

#include "platform/Form.h"
#include "recorder/BoardInput.h"
#include "recorder/ScorletPainter.h"
#include "resources/resource.h"

#include <optional>

// The picker of the piece that a pawn becomes. While a pawn waits for its piece, keys of the board choose it.
class PromotionPicker {
  public:
    // All must outlive the picker.
    PromotionPicker(Form& form, const Recorder& recorder, const BoardInput& input, const ScorletPainter& painter)
        : form(form), recorder(recorder), input(input), painter(painter) {}

    void Create() const;
    void ApplyTexts(const Texts& texts) const;
    void Show();
    // Shows whether it takes keys, which changes with what is picked.
    void ShowMark();
    // The record is another one: a pawn that waits in it has its keys, whatever became of the one before.
    void Reset() { pawn = NoSquare; }
    void Draw(const DRAWITEMSTRUCT& item) const;

    static bool Has(int id) { return id >= imgPromotionQ && id <= imgPromotionN; }
    // Of one of its controls.
    static PieceKind KindOf(int id);

    // A pawn waits, no piece is picked, and the players have not turned to the board all the same.
    bool TakesKeys() const { return pawn != NoSquare && !left && !input.PiecePicked(); }
    // A key or a character of the board. The arrows go on to another piece, Esc leaves the keys to the board. Returns
    // whether it has been taken; `chosen` is the piece that it chooses.
    bool OnKey(WPARAM key, std::optional<PieceKind>& chosen);
    std::optional<PieceKind> OnCharacter(wchar_t character) const;
    // Such as "Promote to..., Queen".
    std::wstring SpokenText(const Texts& texts) const;

  private:
    void Mark(size_t choice);
    void Redraw();

    Form& form;
    const Recorder& recorder;
    const BoardInput& input;
    const ScorletPainter& painter;
    Square pawn = NoSquare;  // where one waits
    bool left = false;
    size_t marked = 0;
    bool markShown = false;
};
