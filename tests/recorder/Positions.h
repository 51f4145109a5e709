#pragma once

#include "recorder/Board.h"

#include <algorithm>
#include <string_view>

// The square of a name, "e4".
inline Square At(std::string_view name) { return SquareAt(name[0] - 'a' + 1, name[1] - '0'); }

// A position of pieces as "WKe1 BRh8".
inline Board Position(std::string_view pieces) {
    Board board;
    for (int index = 11; index <= 88; ++index) {
        if (IsSquare(index)) board.Put(static_cast<Square>(index), Piece::Empty);
    }
    for (; pieces.size() >= 4; pieces.remove_prefix(std::min(pieces.size(), size_t{5})))
        board.Put(At(pieces.substr(2, 2)), *PieceOfCode(pieces.substr(0, 2)));
    return board;
}
