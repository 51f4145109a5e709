#include "recorder/BoardInput.h"

#include <algorithm>

std::optional<ChosenLine> BoardInput::Click(Square square) {
    EndDrag();
    cursor = square;
    clickedSlot.reset();
    clicked.reset();
    const Piece piece = recorder.Position().At(square);
    if (captured) {
        if (piece == Piece::Empty) recorder.PutBack(captured->Captured, captured->Slot, square);
        captured.reset();
        if (piece == Piece::Empty) return std::nullopt;
    }
    // No piece takes one of its own colour: the players mean to pick the other piece.
    if (!origin || *origin == square || OfOneColour(*origin, square)) {
        if (piece != Piece::Empty) clicked = square;
        if (origin == square)
            origin.reset();
        else
            origin = clicked;
        return std::nullopt;
    }
    const ChosenLine line = recorder.Play(*origin, square);
    origin.reset();
    return line;
}

bool BoardInput::OfOneColour(Square first, Square second) const {
    const Piece one = recorder.Position().At(first), other = recorder.Position().At(second);
    return one != Piece::Empty && other != Piece::Empty && SideOf(one) == SideOf(other);
}

void BoardInput::ClickCaptured(Piece piece, int slot) {
    const bool again = IsPicked(piece, slot);
    Cancel();
    clicked.reset();
    clickedSlot.reset();
    if (!recorder.Position().CapturedShown(piece, slot)) return;
    clickedSlot = TraySlot{piece, slot};
    if (!again) captured = clickedSlot;
}

bool BoardInput::Lift() {
    if (clicked && recorder.Position().At(*clicked) != Piece::Empty) {
        Cancel();
        origin = clicked;
    } else if (clickedSlot && recorder.Position().CapturedShown(clickedSlot->Captured, clickedSlot->Slot)) {
        Cancel();
        captured = clickedSlot;
    } else {
        return false;
    }
    lifted = true;
    return true;
}

Piece BoardInput::PickedPiece() const {
    if (captured) return captured->Captured;
    return origin ? recorder.Position().At(*origin) : Piece::Empty;
}

std::optional<ChosenLine> BoardInput::Drop(Square square) {
    const bool back = square == NoSquare || square == origin ||
                      (origin ? OfOneColour(*origin, square) : recorder.Position().At(square) != Piece::Empty);
    if (back) {
        Cancel();
        return std::nullopt;
    }
    return Click(square);
}

void BoardInput::EndDrag() {
    lifted = false;
    target = NoSquare;
}

void BoardInput::PickNextCaptured() {
    const std::optional<TraySlot> before = captured;
    Cancel();
    bool after = !before;
    for (int number = 0; number < 2 * SlotsPerSide; ++number) {
        const TraySlot next = SlotOf(number);
        if (after && recorder.Position().CapturedShown(next.Captured, next.Slot)) {
            captured = next;
            return;
        }
        after = after || next == before;
    }
}

void BoardInput::Cancel() {
    EndDrag();
    origin.reset();
    captured.reset();
}

void BoardInput::MoveCursor(int right, int up) {
    const int way = turned ? -1 : 1;
    cursor = SquareAt(std::clamp(FileOf(cursor) + way * right, 1, 8), std::clamp(RankOf(cursor) + way * up, 1, 8));
}

bool BoardInput::OfLastMove(Square square) const {
    const std::optional<Move>& last = earlier ? earlier->LastMove : recorder.LastMove();
    return last && (last->Origin == square || last->Destination == square);
}

CellLook BoardInput::LookOf(Square square) const {
    return {
        .Shown = Shown().At(square),
        .Origin = origin == square,
        .Lifted = lifted && origin == square,
        .Target = lifted && target == square,
        .LastMove = OfLastMove(square),
        .Cursor = cursor == square,
    };
}
