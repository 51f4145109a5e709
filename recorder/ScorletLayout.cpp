#include "recorder/ScorletLayout.h"

#include <algorithm>

ScorletLayout LayOutScorlet(int width, int height, int dpi) {
    const auto unit = [dpi](int length) {
        return (length * dpi + 48) / 96;
    };
    const int margin = unit(10), line = unit(20), field = unit(24);
    ScorletLayout layout{};

    layout.edge = unit(18);
    layout.coordinateType = unit(12);
    const int column = std::max(unit(196), width * 30 / 100);
    const int slotsHeight = std::max(height / 22, unit(20));
    const int capturedHeight = line + 2 * slotsHeight;
    const int roomWidth = width - column - 3 * margin - layout.edge;
    const int roomHeight = height - capturedHeight - 3 * margin - layout.edge;
    layout.cell = std::max(std::min(roomWidth, roomHeight) / 8, 1);
    const int boardSize = 8 * layout.cell + layout.edge;
    layout.board = {margin, margin, boardSize, boardSize};

    layout.capturedTitle = {margin, layout.board.Bottom() + margin, boardSize, line};
    // Fifteen pieces of a side at the most, in a row.
    layout.slot = std::min(slotsHeight, boardSize / 15);
    for (Side side : BothSides)
        layout.capturedRows[side] = {margin, layout.capturedTitle.Bottom() + side * slotsHeight, boardSize,
                                     layout.slot};

    const int left = layout.board.Right() + margin, right = width - margin, wide = right - left;
    layout.sayLabel = {left, margin, unit(70), field};
    layout.say = {left + unit(74), margin, wide - unit(74), field};

    const int picture = std::min(unit(48), (wide - 3 * unit(6)) / 4);
    const int promotionTop = height - margin - picture;
    for (int i = 0; i < 4; ++i)
        layout.promotion[static_cast<size_t>(i)] = {left + i * (picture + unit(6)), promotionTop, picture, picture};
    layout.promotionTitle = {left, promotionTop - line, wide, line};

    const int editTop = layout.promotionTitle.top - unit(6) - field, ok = unit(64);
    layout.edit = {left, editTop, wide - ok - unit(6), field};
    layout.editOk = {right - ok, editTop, ok, field};

    const int listTop = layout.say.Bottom() + margin, listHeight = editTop - unit(6) - listTop;
    const int listWidth = (wide - unit(6)) / 2;
    layout.lists[White] = {left, listTop, listWidth, listHeight};
    layout.lists[Black] = {right - listWidth, listTop, listWidth, listHeight};
    return layout;
}
