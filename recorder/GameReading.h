#pragma once

#include "recorder/LegalMoves.h"
#include "recorder/MoveList.h"

#include <optional>
#include <string>
#include <vector>

enum class GameFinding {
    Whole,          // the lists are a game of legal moves that ends in the position of the board
    SeveralWays,    // more than one such game
    NotUnderstood,  // none: a half-move is illegal, missing or unreadable, or cannot be told from another
    OtherPosition,  // the moves are legal and clear, but they lead to another position
};

// A game as the lists tell it.
struct GameReading {
    GameFinding Finding = GameFinding::Whole;
    std::vector<std::string> Written;  // the entries in the order of play, up to the last that is written
    // From the initial position: all moves, or, where the game is not understood, those that are beyond doubt.
    std::vector<LegalMove> Moves;
    size_t HalfMove = 0;                // from 0: the one that is not understood, or the first of several ways
    std::optional<LegalMove> OtherWay;  // of that half-move, where there are several

    bool Understood() const { return Finding == GameFinding::Whole || Finding == GameFinding::SeveralWays; }
    // After the moves.
    LegalPosition Position() const;
};

// How many moves are tried at most, each time that the lists are gone through; where that is not enough the game is not
// understood.
inline constexpr size_t MostTries = 20'000;

// Looks for the legal moves that the lists mean. An entry means a move if it is what the Scorlet writes for it, the
// marks, the promotion and the "ep" being left out or not; where no game comes of that, also if it describes the move
// in another usual way: "Nbd2", "N1d2", "Nb1-d2", "ed5".
GameReading ReadGame(const MoveLists& lists, const Board& last);
