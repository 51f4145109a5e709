#pragma once

#include "recorder/LegalMoves.h"

#include <string>

// The notations that other chess programs read, as the Portable Game Notation standard has them.

// A legal move in standard algebraic notation: with what tells it from other legal moves, file before rank before both,
// its promotion, and "+" or "#".
std::string StandardText(const LegalPosition& before, const LegalMove& move);

// A position in Forsyth-Edwards notation. A square that was passed over is written whether a pawn can capture there or
// not.
std::string ForsythText(const LegalPosition& position);

// What a board alone tells of a position: a King and a Rook on their first squares may castle, nothing is known of the
// last moves, and the count begins at move 1.
LegalPosition PositionOf(const Board& board, Side toMove);
