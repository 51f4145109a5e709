#pragma once

#include "base/Box.h"
#include "base/Side.h"

#include <array>

// Where everything stands in the Scorlet window, in pixels of its client area.
struct ScorletLayout {
    Box board;  // with the coordinates at its left and lower edge
    int edge;   // width of those
    int cell;   // side of a square
    Box capturedTitle;
    std::array<Box, 2> capturedRows;  // the captured pieces of each side
    int slot;                         // side of a captured piece's picture
    Box sayLabel, say;
    std::array<Box, 2> lists;
    Box edit, editOk;
    Box promotionTitle;
    std::array<Box, 4> promotion;
    int coordinateType;

    // Of the square in file and rank 1 to 8, seen from White.
    Box Cell(int file, int rank) const {
        return {board.left + edge + (file - 1) * cell, board.top + (8 - rank) * cell, cell, cell};
    }
};

// At 96 dpi: the client size at first, and the least.
inline constexpr int ScorletWidth = 720, ScorletHeight = 590;
inline constexpr int ScorletLeastWidth = 480, ScorletLeastHeight = 420;

// The board takes what room there is; lists, fields and type keep the size of the resolution.
ScorletLayout LayOutScorlet(int width, int height, int dpi);
