#pragma once

#include "recorder/Board.h"

#include <array>
#include <vector>

// The moves that the laws of chess allow. They are for reading a written game and nothing else: what the players enter
// is never judged by them.

// A position with what its board alone does not tell. At first it is the initial one.
struct LegalPosition {
    Board Pieces;
    Side ToMove = White;
    // Whether neither the King nor that Rook has moved, by side.
    std::array<bool, 2> KingSide{true, true}, QueenSide{true, true};
    Square PassedOver = NoSquare;  // by the pawn that has just made its double step
    int QuietHalfMoves = 0;        // since a pawn has moved or a piece has been captured
    int Number = 1;                // of the move
};

struct LegalMove {
    Square Origin, Destination;
    PieceKind Promotion = PieceKind::None;

    bool operator==(const LegalMove&) const = default;
};

// Whether the King of the side to move is attacked. A side without a King is never in check.
bool InCheck(const LegalPosition& position);

// Every legal move, or only those of one kind of piece, or to one square.
std::vector<LegalMove> LegalMoves(const LegalPosition& position, PieceKind kind = PieceKind::None,
                                  Square destination = NoSquare);

// Carries out a move of LegalMoves.
void Carry(LegalPosition& position, const LegalMove& move);
