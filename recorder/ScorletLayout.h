#pragma once

#include "base/Box.h"
#include "base/Side.h"

#include <array>

// Where everything stands in the Scorlet window, in pixels of its client area.
struct ScorletLayout {
    Box Board;     // with the coordinates at its left and lower edge
    int Edge;      // width of those
    int CellSize;  // side of a square
    Box CapturedTitle;
    std::array<Box, 2> CapturedRows;  // the captured pieces of each side
    int Slot;                         // side of a captured piece's picture
    Box SayLabel, Say;
    std::array<Box, 2> Lists;
    Box Edit, EditOk;
    Box PromotionTitle;
    std::array<Box, 4> Promotion;
    int CoordinateType;

    // Of the square in file and rank 1 to 8, seen from White.
    Box Cell(int file, int rank) const {
        return {Board.Left + Edge + (file - 1) * CellSize, Board.Top + (8 - rank) * CellSize, CellSize, CellSize};
    }
};

// At 96 dpi: the client size at first, and the least.
inline constexpr int ScorletWidth = 720, ScorletHeight = 590;
inline constexpr int ScorletLeastWidth = 480, ScorletLeastHeight = 420;

// The board takes what room there is; lists, fields and type keep the size of the resolution.
ScorletLayout LayOutScorlet(int width, int height, int dpi);
