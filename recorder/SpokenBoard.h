#pragma once

#include "recorder/BoardInput.h"
#include "texts/Texts.h"

#include <string>

// What screen readers say of the board.

// Such as "white pawn"; "empty" for no piece.
std::wstring SpokenPiece(const Texts& texts, Piece piece);

// Such as "e4, white pawn, last move".
std::wstring SpokenSquare(const Texts& texts, const BoardInput& input, Square square);

// Such as "white pawn", and whether that captured piece is picked.
std::wstring SpokenCaptured(const Texts& texts, const BoardInput& input, Piece piece, int slot);

// The board as a whole: the captured piece that is picked, if one is, and the square of the cursor.
std::wstring SpokenBoard(const Texts& texts, const BoardInput& input);
