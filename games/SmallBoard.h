#pragma once

#include "platform/Picture.h"
#include "recorder/Board.h"
#include "texts/Texts.h"

#include <windows.h>

#include <array>
#include <string>

// A small picture of a position, to be looked at only.
class SmallBoard {
  public:
    // The board is turned as the Scorlet's is. The pictures of the pieces are loaded at the first call. Throws
    // SystemError.
    void Show(const Board& shown, bool turned);

    void Draw(const DRAWITEMSTRUCT& item) const;

    // What screen readers say: "Board, a8 black rook, ...", rank 8 first.
    std::wstring Spoken(const Texts& texts) const;

  private:
    Board position;
    bool blackBelow = false;
    std::array<Picture, 16> pieces;  // by piece
};
