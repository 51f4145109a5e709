#pragma once

#include "recorder/Recorder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

// The squares by their index, and the captured pieces.
inline std::string BoardText(const Board& board) {
    std::string text;
    for (int index = 11; index <= 88; ++index) {
        if (IsSquare(index)) text += PieceCode(board.At(static_cast<Square>(index)));
    }
    for (const Side side : BothSides) {
        for (const PieceKind kind : TrayKinds) {
            for (int slot = 0; slot < TraySlots(kind); ++slot) {
                const Piece piece = PieceOf(side, kind);
                if (board.CapturedShown(piece, slot)) text += " -" + std::string(PieceCode(piece));
            }
        }
    }
    return text;
}

// The two lists as they are shown, a result in brackets: "1. e4|[0-1] / e5".
inline std::string ListText(const MoveLists& lists) {
    std::string text;
    for (const Side side : BothSides) {
        for (size_t i = 0; i < lists[side].Entries().size(); ++i) {
            if (i > 0) text += "|";
            const std::string line = lists[side].Line(i, side);
            text += lists[side].Entries()[i].IsResult() ? "[" + line + "]" : line;
        }
        if (side == White) text += " / ";
    }
    return text;
}

// Enters a move given as "e2e4" or "e7e8q".
inline void Enter(Recorder& recorder, std::string_view move) {
    const auto square = [&](size_t at) { return SquareAt(move[at] - 'a' + 1, move[at + 1] - '0'); };
    recorder.Play(square(0), square(2));
    if (move.size() > 4) recorder.Promote(KindOfLetter(static_cast<char>(move[4] - 'a' + 'A')));
}

inline void EnterAll(Recorder& recorder, const std::string& moves) {
    std::istringstream words(moves);
    for (std::string word; words >> word;) Enter(recorder, word);
}

inline Recorder Played(const std::string& moves) {
    Recorder recorder;
    EnterAll(recorder, moves);
    return recorder;
}

// The real games in tests/data, each as its moves without the result.
struct RealGame {
    std::string Name;
    std::vector<std::string> Moves;
    std::string Result;
};

inline std::vector<RealGame> RealGames() {
    std::vector<RealGame> games;
    for (const char* name : {"kasparov-deep-blue-1997", "world-championship-2023-game1"}) {
        std::ifstream file(std::string(TEST_DATA "/") + name + ".moves");
        int number = 0;
        for (std::string line; std::getline(file, line);) {
            std::istringstream stream(line);
            RealGame game{std::string(name) + " " + std::to_string(number++), {}, {}};
            for (std::string word; stream >> word;) game.Moves.push_back(word);
            game.Result = game.Moves.back();
            game.Moves.pop_back();
            games.push_back(game);
        }
    }
    EXPECT_EQ(games.size(), 7u);
    return games;
}
