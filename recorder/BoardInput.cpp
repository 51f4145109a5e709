#include "recorder/BoardInput.h"

#include <algorithm>

std::optional<ChosenLine> BoardInput::Click(Square square) {
    cursor = square;
    const Piece clicked = recorder.Position().At(square);
    if (captured) {
        if (clicked == Piece::Empty) recorder.PutBack(captured->Captured, captured->Slot, square);
        captured.reset();
        if (clicked == Piece::Empty) return std::nullopt;
    }
    if (!origin) {
        if (clicked != Piece::Empty) origin = square;
        return std::nullopt;
    }
    if (*origin == square) {
        origin.reset();
        return std::nullopt;
    }
    // No piece takes one of its own colour: the players mean to pick the other piece.
    if (clicked != Piece::Empty && SideOf(clicked) == SideOf(recorder.Position().At(*origin))) {
        origin = square;
        return std::nullopt;
    }
    const ChosenLine line = recorder.Play(*origin, square);
    origin.reset();
    return line;
}

void BoardInput::ClickCaptured(Piece piece, int slot) {
    const bool again = IsPicked(piece, slot);
    Cancel();
    if (!again && recorder.Position().CapturedShown(piece, slot)) captured = TraySlot{piece, slot};
}

void BoardInput::PickNextCaptured() {
    const std::optional<TraySlot> before = captured;
    Cancel();
    bool behind = !before;
    for (int number = 0; number < 2 * SlotsPerSide; ++number) {
        const TraySlot next = SlotOf(number);
        if (behind && recorder.Position().CapturedShown(next.Captured, next.Slot)) {
            captured = next;
            return;
        }
        behind = behind || next == before;
    }
}

void BoardInput::Cancel() {
    origin.reset();
    captured.reset();
}

void BoardInput::MoveCursor(int files, int ranks) {
    cursor = SquareAt(std::clamp(FileOf(cursor) + files, 1, 8), std::clamp(RankOf(cursor) + ranks, 1, 8));
}

CellLook BoardInput::LookOf(Square square) const {
    const auto& last = recorder.LastMove();
    return {
        .Shown = recorder.Position().At(square),
        .Origin = origin == square,
        .LastMove = last && (last->Origin == square || last->Destination == square),
        .Cursor = cursor == square,
    };
}
