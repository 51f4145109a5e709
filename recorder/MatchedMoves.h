#pragma once

#include "recorder/Board.h"

#include <string>
#include <string_view>
#include <vector>

// A move that a typed text can mean, and the piece that its pawn becomes, if the text says so.
struct MatchedMove {
    Move Played;
    PieceKind Promotion;  // None: left open
};

// The moves of a side that a text can mean: "Nf3", "exd5", "Rad1", "N1d2", "e8=N", "O-O", "e2e4", "Ng1-f3". A move goes
// as its piece goes, past no other piece and onto none of its own side; whether it is legal does not matter. Small
// letters will do for pieces, and check marks may be left out or written.
std::vector<MatchedMove> MatchMoves(const Board& board, Side side, std::string_view typed);

// What tells a move from all others, to be shown where several match: "Ng1-f3".
std::string FullText(const Move& move);

// Whether a move can begin with that character: a to h, N, B, R, Q, K, O, small or not, and the 0 of castling.
bool BeginsMove(char character);
