#include "recorder/ScorletLayout.h"

#include <algorithm>

ScorletLayout LayOutScorlet(int width, int height, int dpi) {
    const auto unit = [dpi](int length) { return (length * dpi + 48) / 96; };
    const int margin = unit(10), line = unit(20), field = unit(24);
    ScorletLayout layout{};

    layout.Edge = unit(18);
    layout.CoordinateType = unit(12);
    const int column = std::max(unit(196), width * 30 / 100);
    const int slotsHeight = std::max(height / 22, unit(20));
    const int capturedHeight = line + 2 * slotsHeight;
    const int roomWidth = width - column - 3 * margin - layout.Edge;
    const int roomHeight = height - capturedHeight - 3 * margin - layout.Edge;
    layout.CellSize = std::max(std::min(roomWidth, roomHeight) / 8, 1);
    const int boardSize = 8 * layout.CellSize + layout.Edge;
    layout.Board = {margin, margin, boardSize, boardSize};

    const Box corner = layout.Cell(1, 8);
    layout.TypedMove = {corner.Left, corner.Top, 4 * layout.CellSize, field};
    layout.TypedReason = {corner.Left, layout.TypedMove.Bottom(), 8 * layout.CellSize, unit(32)};

    layout.CapturedTitle = {margin, layout.Board.Bottom() + margin, boardSize, line};
    // A row holds at most the fifteen pieces that a side can lose.
    layout.Slot = std::min(slotsHeight, boardSize / 15);
    for (Side side : BothSides)
        layout.CapturedRows[side] = {margin, layout.CapturedTitle.Bottom() + side * slotsHeight, boardSize,
                                     layout.Slot};

    const int left = layout.Board.Right() + margin, right = width - margin, wide = right - left;
    layout.SayLabel = {left, margin, unit(70), field};
    layout.Say = {left + unit(74), margin, wide - unit(74), field};

    const int picture = std::min(unit(48), (wide - 3 * unit(6)) / 4);
    const int promotionTop = height - margin - picture;
    for (int i = 0; i < 4; ++i)
        layout.Promotion[static_cast<size_t>(i)] = {left + i * (picture + unit(6)), promotionTop, picture, picture};
    layout.PromotionTitle = {left, promotionTop - line, wide, line};

    const int editTop = layout.PromotionTitle.Top - unit(6) - field, ok = unit(64);
    layout.Edit = {left, editTop, wide - ok - unit(6), field};
    layout.EditOk = {right - ok, editTop, ok, field};

    layout.WhoseMove = {left, layout.Say.Bottom() + unit(6), wide, unit(32)};
    const int listTop = layout.WhoseMove.Bottom() + unit(4), listHeight = editTop - unit(6) - listTop;
    const int listWidth = (wide - unit(6)) / 2;
    layout.Lists[White] = {left, listTop, listWidth, listHeight};
    layout.Lists[Black] = {right - listWidth, listTop, listWidth, listHeight};
    return layout;
}
