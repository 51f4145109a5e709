#pragma once

#include "games/GameFile.h"
#include "recorder/Board.h"

// A position as eight lines of text, rank 8 first. A square is the piece's code or "--", and two blanks.

inline constexpr size_t DiagramBytes = 8 * 34;

std::string EncodeDiagram(const Board& board);

// Reads a diagram; the line end after the last rank may be missing. No captured piece is shown on the board that is
// read.
std::optional<GameFileError> DecodeDiagram(std::string_view text, Board& board);
