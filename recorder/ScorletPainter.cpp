#include "recorder/ScorletPainter.h"

#include "platform/Colours.h"
#include "platform/Look.h"
#include "platform/Painting.h"
#include "platform/modResource.h"
#include "recorder/BoardSquare.h"

#include <algorithm>
#include <string>

namespace {

constexpr Colour Own(uint32_t redGreenBlue, int system) { return {ColourOf(redGreenBlue), system}; }

constexpr Colour MarkedColour = Own(Look::LightLast, COLOR_WINDOW);
constexpr Colour PickedColour = Own(Look::Picked, COLOR_HIGHLIGHT), LastColour = Own(Look::LastMark, COLOR_WINDOWTEXT);
constexpr Colour TrayColour = Own(Look::Tray, COLOR_WINDOW), SheetColour = Own(Look::Sheet, COLOR_WINDOW);
constexpr Colour LineColour = Own(Look::Line, COLOR_WINDOWTEXT), InkColour = Own(Look::Ink, COLOR_WINDOWTEXT);

struct LineColours {
    Colour Ground, Edge, Ink;
};
constexpr LineColours ColoursOf(LineLook look) {
    switch (look) {
        case LineLook::Warning:
            return {Own(Look::Warning, COLOR_HIGHLIGHT), Own(Look::Paused, COLOR_HIGHLIGHT),
                    Own(Look::WarningInk, COLOR_HIGHLIGHTTEXT)};
        case LineLook::LookBack:
            return {Own(Look::LookBack, COLOR_HIGHLIGHT), Own(Look::LookBackInk, COLOR_HIGHLIGHT),
                    Own(Look::LookBackInk, COLOR_HIGHLIGHTTEXT)};
        default:
            return {Own(Look::Expected, COLOR_WINDOW), Own(Look::Running, COLOR_WINDOWTEXT),
                    Own(Look::Ink, COLOR_WINDOWTEXT)};
    }
}

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
    type = layout.Type;
    font = MakeFont(type, false);
    headFont = MakeFont(type, true);
    coordinateFont = MakeFont(layout.CoordinateType, false);
}

HBRUSH ScorletPainter::LabelColours(HDC dc, LabelGround label) const {
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, label == LabelGround::Sheet ? inkColour : quietColour);
    return label == LabelGround::Sheet ? headGround.get() : ground.get();
}

void ScorletPainter::DrawGround(HDC dc, const RECT& client, const ScorletLayout& layout) const {
    FillRect(dc, &client, ground.get());
    for (const Box& row : layout.CapturedRows) Fill(dc, RectOf(row), TrayColour);
    RECT sheet = RectOf(layout.Sheet), head = sheet;
    head.bottom = layout.Lists[White].Top;
    Fill(dc, sheet, SheetColour);
    FillRect(dc, &head, headGround.get());
    Frame(dc, sheet, LineColour);
}

void ScorletPainter::DrawBoardEdge(const DRAWITEMSTRUCT& item, const ScorletLayout& layout, bool earlier) const {
    const Buffered buffer(item);
    const RECT whole = buffer.Area();
    const LineColours look = ColoursOf(LineLook::LookBack);
    FillRect(buffer.Dc(), &whole, ground.get());
    if (earlier) Fill(buffer.Dc(), whole, look.Ground);
    const Selection selection(buffer.Dc(), coordinateFont.get());
    SetTextColor(buffer.Dc(), earlier ? look.Ink : quietColour);
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
    DrawSquare(buffer.Dc(), area, IsLight(square), look.LastMove);

    const int size = static_cast<int>(area.right), thickness = std::max(size / 16, 2);
    if (look.LastMove) CornerMarks(buffer.Dc(), area, LastColour, thickness);
    if (look.Origin || look.Target) ThickFrame(buffer.Dc(), area, PickedColour, thickness + 1);
    if (!look.Lifted) PictureOf(look.Shown).Draw(buffer.Dc(), 0, 0, size);
    if (look.Cursor) {
        // Inside the frame of a picked piece.
        InflateRect(&area, -thickness - 1, -thickness - 1);
        ThickFrame(buffer.Dc(), area, InkColour, thickness);
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
    FillRect(buffer.Dc(), &area, ground.get());
    const int size = static_cast<int>(area.right), line = waits ? marked ? 4 : 2 : 1;
    FillRounded(buffer.Dc(), area, size / 6, waits ? PickedColour : LineColour);
    RECT inner = area;
    InflateRect(&inner, -line, -line);
    FillRounded(buffer.Dc(), inner, size / 6 - line, marked ? MarkedColour : TrayColour);
    pieces[static_cast<size_t>(piece)].Draw(buffer.Dc(), 0, 0, size);
    if (item.itemState & ODS_FOCUS) DrawFocusRect(buffer.Dc(), &area);
}

void ScorletPainter::DrawWhoseMove(const DRAWITEMSTRUCT& item, const std::wstring& text, LineLook look,
                                   Side side) const {
    const Buffered buffer(item);
    const RECT area = buffer.Area();
    const LineColours colours = ColoursOf(look);
    const int edge = std::max(type / 12, 1);
    RECT inner = area;
    InflateRect(&inner, -edge, -edge);
    FillRect(buffer.Dc(), &area, ground.get());
    FillRounded(buffer.Dc(), area, type / 2, colours.Edge);
    FillRounded(buffer.Dc(), inner, type / 2 - edge, colours.Ground);

    const LONG left = type / 2, size = type, top = (area.bottom - size) / 2;
    RECT disc{left, top, left + size, top + size};
    FillRounded(buffer.Dc(), disc, size, colours.Ink);
    InflateRect(&disc, -edge, -edge);
    if (side == White) FillRounded(buffer.Dc(), disc, size, RGB(255, 255, 255));

    const Selection selection(buffer.Dc(), look == LineLook::Expected ? headFont.get() : font.get());
    SetTextColor(buffer.Dc(), colours.Ink);
    RECT place{2 * type, 0, area.right - type / 2, 0};
    DrawTextW(buffer.Dc(), text.c_str(), -1, &place, DT_WORDBREAK | DT_NOPREFIX | DT_CALCRECT);
    place.right = area.right - type / 2;
    OffsetRect(&place, 0, (area.bottom - place.bottom) / 2);
    DrawTextW(buffer.Dc(), text.c_str(), -1, &place, DT_WORDBREAK | DT_NOPREFIX);
}
