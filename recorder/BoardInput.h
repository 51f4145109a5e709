#pragma once

#include "recorder/EarlierPosition.h"
#include "recorder/Recorder.h"

#include <optional>

// What a square shows.
struct CellLook {
    Piece Shown;
    bool Origin;    // its piece is picked
    bool Lifted;    // and is shown under the mouse pointer instead
    bool Target;    // a piece is dragged over it
    bool LastMove;  // where the last move began or ended
    bool Cursor;    // the cursor of the keys is here

    bool operator==(const CellLook&) const = default;
};

// How the players enter moves: a piece is picked on one square and dropped on another, by clicks, by a cursor that keys
// move, or by dragging it. A captured piece can be picked too, and put back on an empty square.
class BoardInput {
  public:
    // The recorder must outlive the input.
    explicit BoardInput(Recorder& recorder) : recorder(recorder) {}

    std::optional<Square> Origin() const { return origin; }
    Square Cursor() const { return cursor; }
    bool PiecePicked() const { return origin || captured; }
    bool IsPicked(Piece piece, int slot) const {
        return captured && captured->Captured == piece && captured->Slot == slot;
    }

    const std::optional<TraySlot>& Captured() const { return captured; }
    CellLook LookOf(Square square) const;

    // Has an earlier position shown in place of the game's, and no value the game's again. What is entered is entered
    // in the game all the same.
    void ShowEarlier(const std::optional<EarlierPosition>& position) { earlier = position; }
    // What the board shows.
    const Board& Shown() const { return earlier ? earlier->Pieces : recorder.Position(); }
    bool ShowsEarlier() const { return earlier.has_value(); }
    // Whether the move before that began or ended there.
    bool OfLastMove(Square square) const;

    // A click on a square, or Enter on the cursor's square. Returns the written line if that has made a move.
    std::optional<ChosenLine> Click(Square square);
    // A click on a captured piece that is shown.
    void ClickCaptured(Piece piece, int slot);

    // Picks up the piece that the last click has picked or let go, since the mouse drags it now. False: that click was
    // none on a piece, or has made a move, or the piece is no longer there.
    bool Lift();
    // Whether a piece is being dragged. Whatever else enters something or changes what is picked ends that.
    bool Lifted() const { return lifted; }
    // The piece that is picked; Empty for none.
    Piece PickedPiece() const;
    // The dragged piece is over a square, or with NoSquare over none.
    void PointAt(Square square) { target = square; }
    // The dragged piece is let go there. On its origin, on no square and on a piece of its own colour it goes back to
    // where it was, and so does a captured piece on any other. Returns the written line if that has made a move.
    std::optional<ChosenLine> Drop(Square square);

    // Picks the captured piece that is shown after the picked one, or the first if none is picked. After the last, none
    // is picked.
    void PickNextCaptured();
    // Puts the picked piece back where it was.
    void Cancel();
    // Nothing is picked, and the cursor is where it is at first.
    void Reset() {
        Cancel();
        cursor = Start;
    }
    // Moves the cursor by so many squares, at most to the edge, as the players see the board.
    void MoveCursor(int right, int up);
    // Whether they see Black's side below.
    void Turn(bool toTurned) { turned = toTurned; }

  private:
    bool OfOneColour(Square first, Square second) const;
    void EndDrag();

    Recorder& recorder;
    std::optional<EarlierPosition> earlier;
    std::optional<Square> origin;
    std::optional<TraySlot> captured;
    std::optional<Square> clicked;  // where the last click picked a piece, or let it go
    std::optional<TraySlot> clickedSlot;
    bool lifted = false;
    Square target = NoSquare;
    static constexpr Square Start = SquareAt(5, 2);
    Square cursor = Start;
    bool turned = false;
};
