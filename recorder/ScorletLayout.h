#pragma once

#include "base/Box.h"
#include "base/Side.h"

#include <array>

// The places of everything in the Scorlet window, in pixels of its client area.
struct ScorletLayout {
    Box Board;     // with the coordinates on its left and below it
    int Edge;      // width of the coordinates
    int CellSize;  // side of a square
    Box CapturedTitle;
    std::array<Box, 2> CapturedRows;  // the captured pieces of each side
    int Slot;                         // side of a captured piece's picture
    Box SayLabel, Say;
    Box WhoseMove;  // two lines of type
    std::array<Box, 2> Lists;
    Box Edit, EditOk;
    Box TypedMove, TypedReason;  // over the board
    Box PromotionTitle;
    std::array<Box, 4> Promotion;
    int CoordinateType;

    // The square of a file and a rank, 1 to 8, seen from White's side.
    Box Cell(int file, int rank) const {
        return {Board.Left + Edge + (file - 1) * CellSize, Board.Top + (8 - rank) * CellSize, CellSize, CellSize};
    }
};

// The client size at first, and the smallest, at 96 dpi.
inline constexpr int ScorletWidth = 720, ScorletHeight = 590;
inline constexpr int ScorletLeastWidth = 480, ScorletLeastHeight = 420;

// The board takes the room that there is; the size of lists, fields and type depends on the resolution only.
ScorletLayout LayOutScorlet(int width, int height, int dpi);
