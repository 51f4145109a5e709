#pragma once

#include "recorder/Piece.h"

#include <array>
#include <span>

// How far a move goes along the files and along the ranks.
struct Step {
    int Files, Ranks;
};

inline constexpr std::array KnightJumps{Step{-2, -1}, Step{-2, 1}, Step{-1, -2}, Step{-1, 2},
                                        Step{1, -2},  Step{1, 2},  Step{2, -1},  Step{2, 1}};

// Diagonals first, then files and ranks, so that the directions of each sliding piece are consecutive.
inline constexpr std::array Directions{Step{-1, -1}, Step{-1, 1}, Step{1, -1}, Step{1, 1},
                                       Step{-1, 0},  Step{1, 0},  Step{0, -1}, Step{0, 1}};

// The steps of a kind of piece other than a pawn.
constexpr std::span<const Step> StepsOf(PieceKind kind) {
    const std::span<const Step> all(Directions);
    switch (kind) {
        case PieceKind::Knight: return KnightJumps;
        case PieceKind::Bishop: return all.first(4);
        case PieceKind::Rook: return all.last(4);
        default: return all;
    }
}
