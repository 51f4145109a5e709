#include "platform/GroupBox.h"

#include "platform/Colours.h"
#include "platform/Painting.h"
#include "platform/Subclass.h"

namespace {

constexpr Colour CardEdge{ColourOf(Look::CardEdge), COLOR_BTNTEXT};

// Its place goes with the type.
void DrawHeading(HWND box, HDC dc) {
    const Selection font(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(box, WM_GETFONT, 0, 0)));
    TEXTMETRICW type{};
    GetTextMetricsW(dc, &type);
    wchar_t text[128];
    const int length = GetWindowTextW(box, text, 128);
    RECT area{};
    GetClientRect(box, &area);
    area.left += type.tmHeight * 8 / 7;
    area.top += type.tmHeight / 2;
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, InkOf(Look::Heading));
    DrawTextW(dc, text, length, &area, DT_SINGLELINE | DT_NOCLIP);
}

LRESULT CALLBACK HeadingProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            const HDC dc = BeginPaint(box, &paint);
            DrawHeading(box, dc);
            EndPaint(box, &paint);
            return 0;
        }
        default: return DefSubclassProc(box, message, wParam, lParam);
    }
}

}  // namespace

COLORREF InkOf(const Look::TypeStyle& style) { return Colour(ColourOf(style.Ink), COLOR_BTNTEXT); }

void DrawCard(HDC dc, const RECT& area, int corner, COLORREF colour) {
    FillRounded(dc, area, corner, CardEdge);
    FillRounded(dc, {area.left + 1, area.top + 1, area.right - 1, area.bottom - 1}, corner - 1, colour);
}

void DrawHeadingOnly(HWND groupBox) { Subclass<HeadingProcedure>(groupBox); }
