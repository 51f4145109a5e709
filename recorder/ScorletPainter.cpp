#include "recorder/ScorletPainter.h"

#include "platform/Colours.h"
#include "platform/Painting.h"
#include "platform/modResource.h"

#include <string>

namespace {

// With the system's colours the dark squares are hatched, as in print.
constexpr Colour LightSquare{RGB(0xF0, 0xD9, 0xB5), COLOR_WINDOW}, DarkSquare{RGB(0xB5, 0x88, 0x63), COLOR_WINDOW};
constexpr Colour LightLast{RGB(0xF4, 0xE4, 0x7A), COLOR_WINDOW}, DarkLast{RGB(0xD2, 0xB0, 0x48), COLOR_WINDOW};
constexpr Colour PickedColour{RGB(0x1D, 0x5F, 0xD0), COLOR_HIGHLIGHT};
constexpr Colour LastColour{RGB(0x5A, 0x40, 0x2E), COLOR_WINDOWTEXT};
constexpr Colour EdgeColour{RGB(0x5A, 0x40, 0x2E), COLOR_WINDOW}, EdgeInk{RGB(0xF0, 0xE4, 0xD2), COLOR_WINDOWTEXT};
constexpr Colour TrayColour{RGB(0xDF, 0xD8, 0xCC), COLOR_WINDOW};

// A frame inside the edges of a square.
void ThickFrame(HDC dc, RECT area, COLORREF colour, int thickness) {
    for (int i = 0; i < thickness; ++i) {
        Frame(dc, area, colour);
        InflateRect(&area, -1, -1);
    }
}

// An angle at each corner of a square.
void CornerMarks(HDC dc, const RECT& area, COLORREF colour, int thickness) {
    const LONG size = area.right, length = size / 4;
    for (const LONG left : {LONG{0}, size - length}) {
        const LONG edge = left == 0 ? 0 : size - thickness;
        Fill(dc, {left, 0, left + length, thickness}, colour);
        Fill(dc, {left, size - thickness, left + length, size}, colour);
        Fill(dc, {edge, 0, edge + thickness, length}, colour);
        Fill(dc, {edge, size - length, edge + thickness, size}, colour);
    }
}

void Hatch(HDC dc, const RECT& area) {
    const UniqueBrush brush(CreateHatchBrush(HS_BDIAGONAL, GetSysColor(COLOR_WINDOWTEXT)));
    FillRect(dc, &area, brush.get());
}

}  // namespace

void ScorletPainter::LoadPictures() {
    for (const Side side : BothSides) {
        for (int kind = 1; kind <= 6; ++kind) {
            const Piece piece = PieceOf(side, static_cast<PieceKind>(kind));
            pieces[static_cast<size_t>(piece)] =
                Picture(*modResource::LoadResourcePicture(std::string(PieceCode(piece))));
        }
    }
}

void ScorletPainter::SetLayout(const ScorletLayout& layout) {
    font = MakeFont(layout.Type, false);
    headFont = MakeFont(layout.Type, true);
    coordinateFont = MakeFont(layout.CoordinateType, true);
}

void ScorletPainter::DrawTrays(HDC dc, const ScorletLayout& layout) const {
    for (const Box& row : layout.CapturedRows) Fill(dc, {row.Left, row.Top, row.Right(), row.Bottom()}, TrayColour);
}

void ScorletPainter::DrawBoardEdge(const DRAWITEMSTRUCT& item, const ScorletLayout& layout) const {
    const Buffered buffer(item);
    Fill(buffer.Dc(), buffer.Area(), EdgeColour);
    const Selection selection(buffer.Dc(), coordinateFont.get());
    SetTextColor(buffer.Dc(), EdgeInk);
    const auto write = [&](wchar_t character, RECT area) {
        DrawTextW(buffer.Dc(), &character, 1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    };
    for (int i = 1; i <= 8; ++i) {
        const Box cell = layout.Cell(i, i);
        const int left = cell.Left - layout.Board.Left, top = cell.Top - layout.Board.Top;
        write(static_cast<wchar_t>(L'0' + i), {0, top, layout.Edge, top + layout.CellSize});
        write(static_cast<wchar_t>(L'a' + i - 1),
              {left, 8 * layout.CellSize, left + layout.CellSize, layout.Board.Height});
    }
}

void ScorletPainter::DrawCell(const DRAWITEMSTRUCT& item, Square square, const CellLook& look) const {
    const Buffered buffer(item);
    RECT area = buffer.Area();
    const bool light = (FileOf(square) + RankOf(square)) % 2 != 0;
    if (look.LastMove)
        Fill(buffer.Dc(), area, light ? LightLast : DarkLast);
    else
        Fill(buffer.Dc(), area, light ? LightSquare : DarkSquare);
    if (!light && HighContrast()) Hatch(buffer.Dc(), area);

    const int size = static_cast<int>(area.right), thickness = std::max(size / 16, 2);
    if (look.LastMove) CornerMarks(buffer.Dc(), area, LastColour, thickness);
    if (look.Origin || look.Target) ThickFrame(buffer.Dc(), area, PickedColour, thickness + 1);
    if (!look.Lifted) PictureOf(look.Shown).Draw(buffer.Dc(), 0, 0, size);
    if (look.Cursor) {
        InflateRect(&area, -thickness, -thickness);
        SetTextColor(buffer.Dc(), RGB(0, 0, 0));
        DrawFocusRect(buffer.Dc(), &area);
    }
}

void ScorletPainter::DrawCaptured(const DRAWITEMSTRUCT& item, Piece piece, bool picked) const {
    const Buffered buffer(item);
    const RECT area = buffer.Area();
    Fill(buffer.Dc(), area, TrayColour);
    PictureOf(piece).Draw(buffer.Dc(), 0, 0, static_cast<int>(area.right));
    if (picked) ThickFrame(buffer.Dc(), area, PickedColour, 2);
}

void ScorletPainter::DrawPromotion(const DRAWITEMSTRUCT& item, Piece piece, bool waits, bool marked) const {
    const Buffered buffer(item);
    RECT area = buffer.Area();
    FillRect(buffer.Dc(), &area, BackgroundBrush());
    if (marked) Fill(buffer.Dc(), area, LightLast);
    pieces[static_cast<size_t>(piece)].Draw(buffer.Dc(), 0, 0, static_cast<int>(area.right));
    if (waits) ThickFrame(buffer.Dc(), area, PickedColour, marked ? 4 : 2);
    if (item.itemState & ODS_FOCUS) DrawFocusRect(buffer.Dc(), &area);
}
