#pragma once

#include "base/Box.h"
#include "base/Side.h"
#include "recorder/Square.h"

#include <array>

// The places of everything in the Scorlet window, in pixels of its client area.
struct ScorletLayout {
    Box Board;     // with the coordinates on its left and below it
    int Edge;      // width of the coordinates
    int CellSize;  // side of a square
    bool Turned;   // Black's side is below
    Box CapturedTitle;
    std::array<Box, 2> CapturedRows;  // the captured pieces of each side
    int Slot;                         // side of a captured piece's picture
    Box SayLabel, Say;
    Box WhoseMove;  // at least two lines of type
    Box Sheet;      // what the lists and their heads lie on, with its edge
    std::array<Box, 2> ListHeads, Lists;
    Box Edit, EditOk;
    Box TypedMove, TypedReason;  // over the board
    Box PromotionTitle;
    std::array<Box, 4> Promotion;
    int Type, CoordinateType;  // heights of type

    // The square of a file and a rank, 1 to 8.
    Box Cell(int file, int rank) const {
        const int column = Turned ? 8 - file : file - 1, row = Turned ? rank - 1 : 8 - rank;
        return {Board.Left + Edge + column * CellSize, Board.Top + row * CellSize, CellSize, CellSize};
    }
    // The square at a point; NoSquare outside the squares.
    Square SquareAt(int x, int y) const;
    // The place of a captured piece, counted from 0 at the left of its side's row.
    Box Captured(Side side, int place) const {
        return {CapturedRows[side].Left + place * Slot, CapturedRows[side].Top, Slot, Slot};
    }
};

// The client size at first, and the smallest, at 96 dpi.
inline constexpr int ScorletWidth = 720, ScorletHeight = 590;
inline constexpr int ScorletLeastWidth = 304, ScorletLeastHeight = 384;

// The lists lie beside the board or, where that makes the squares clearly larger, below it. The board takes the room
// that there is. Everything else has the size that the resolution asks for in a window of the design's size, grows with
// a larger one, and shrinks in a small one to no less than three quarters, the promotion pictures to half.
ScorletLayout LayOutScorlet(int width, int height, int dpi, bool turned);
