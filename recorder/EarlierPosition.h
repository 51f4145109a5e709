#pragma once

#include "recorder/Board.h"

#include <optional>

// The position after an entry of the move lists, and the move that led to it.
struct EarlierPosition {
    Board Pieces;
    std::optional<Move> LastMove{};
};
