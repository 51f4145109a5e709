#pragma once

#include "games/GameFile.h"
#include "games/GameHead.h"

// The file that holds the two move lists: the head, and the movetext on one line with the numbers of both sides
// ("1. e4 1... e5 2. Nf3 *").

// Deliberate: the movetext begins on the line feed of the empty line after the head, so that a carriage return comes
// before it.
std::string EncodeCgn(const GameHead& head, const MoveLists& lists);

// Reads the lists. A result becomes the last entry of the list of the side to move, or of the other side's where its
// last move is mate. The head is not looked at.
std::optional<GameFileError> DecodeCgn(std::string_view bytes, Side sideToMove, MoveLists& lists);
