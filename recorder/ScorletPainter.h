#pragma once

#include "platform/Colours.h"
#include "platform/Handles.h"
#include "platform/Look.h"
#include "platform/Picture.h"
#include "recorder/BoardInput.h"
#include "recorder/ScorletLayout.h"

#include <windows.h>

#include <array>
#include <string>

// How the line that says which move is expected stands out.
enum class LineLook { Expected, Warning, LookBack };

enum class LabelGround { Plain, Sheet };

// How the Scorlet looks: its colours, type and pictures.
class ScorletPainter {
  public:
    // Throws a SystemError that names the picture.
    void LoadPictures();
    void SetLayout(const ScorletLayout& layout);

    HFONT Font() const { return font.get(); }
    HFONT HeadFont() const { return headFont.get(); }
    // Sets the colour of a label's type and returns its ground: that of the names over the lists, or of the others.
    HBRUSH LabelColours(HDC dc, LabelGround label) const;

    // Empty for no piece, and where the picture could not be loaded.
    const Picture& PictureOf(Piece piece) const { return pieces[static_cast<size_t>(piece)]; }

    // What everything lies on: the ground, the trays of the captured pieces and the sheet of the lists.
    void DrawGround(HDC dc, const RECT& client, const ScorletLayout& layout) const;
    // In another colour while an earlier position is shown.
    void DrawBoardEdge(const DRAWITEMSTRUCT& item, const ScorletLayout& layout, bool earlier) const;
    void DrawCell(const DRAWITEMSTRUCT& item, Square square, const CellLook& look) const;
    // With Piece::Empty the place of one that is dragged.
    void DrawCaptured(const DRAWITEMSTRUCT& item, Piece piece, bool picked) const;
    // A choice of the promotion picker, framed while the picker waits, and marked where Enter would choose it.
    void DrawPromotion(const DRAWITEMSTRUCT& item, Piece piece, bool waits, bool marked) const;

    // The line, with a disc in the colour of a side before its text. The text has this much room left and right of it.
    void DrawWhoseMove(const DRAWITEMSTRUCT& item, const std::wstring& text, LineLook look, Side side) const;
    static constexpr int BesideLine(int type) { return 5 * type / 2; }

  private:
    static constexpr Colour inkColour{ColourOf(Look::Ink), COLOR_BTNTEXT};
    static constexpr Colour quietColour{ColourOf(Look::QuietInk), COLOR_BTNTEXT};

    const Brush ground{{ColourOf(Look::Card), COLOR_BTNFACE}}, headGround{{ColourOf(Look::Tray), COLOR_BTNFACE}};
    UniqueFont font, headFont, coordinateFont;
    int type = 0;
    std::array<Picture, 16> pieces;  // by piece
};
