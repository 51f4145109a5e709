#pragma once

#include "platform/Handles.h"
#include "platform/Picture.h"
#include "recorder/BoardInput.h"
#include "recorder/ScorletLayout.h"

#include <windows.h>

#include <array>

// How the Scorlet looks: its colours, type and pictures.
class ScorletPainter {
  public:
    // Throws a SystemError that names the picture.
    void LoadPictures();
    void SetLayout(const ScorletLayout& layout);

    HFONT Font() const { return font.get(); }
    HFONT HeadFont() const { return headFont.get(); }
    // The system's own colour of dialogs, since the lists and fields are the system's too.
    HBRUSH BackgroundBrush() const { return GetSysColorBrush(COLOR_BTNFACE); }

    // Empty for no piece, and where the picture could not be loaded.
    const Picture& PictureOf(Piece piece) const { return pieces[static_cast<size_t>(piece)]; }

    // What the captured pieces lie on.
    void DrawTrays(HDC dc, const ScorletLayout& layout) const;
    void DrawBoardEdge(const DRAWITEMSTRUCT& item, const ScorletLayout& layout) const;
    void DrawCell(const DRAWITEMSTRUCT& item, Square square, const CellLook& look) const;
    // With Piece::Empty the place of one that is dragged.
    void DrawCaptured(const DRAWITEMSTRUCT& item, Piece piece, bool picked) const;
    // A choice of the promotion picker, framed while the picker waits, and marked where Enter would choose it.
    void DrawPromotion(const DRAWITEMSTRUCT& item, Piece piece, bool waits, bool marked) const;

  private:
    UniqueFont font, headFont, coordinateFont;
    std::array<Picture, 16> pieces;  // by piece
};
