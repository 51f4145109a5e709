#include "clock/ClockPainter.h"

#include "platform/Painting.h"

#include <algorithm>

namespace {

constexpr Colour PanelColour{RGB(0xE6, 0xE6, 0xE6), COLOR_WINDOW};
constexpr Colour RunningColour{RGB(0xFF, 0xF1, 0xC2), COLOR_WINDOW};
constexpr Colour MarkColour{RGB(0x12, 0x8A, 0x3A), COLOR_HIGHLIGHT};
constexpr Colour EdgeColour{RGB(0x6E, 0x6E, 0x6E), COLOR_WINDOWTEXT};

struct FaceColours {
    Colour Ground, Ink, FallenInk;
};
constexpr std::array<FaceColours, 2> Faces{
    FaceColours{{RGB(0xFF, 0xFF, 0xFF), COLOR_WINDOW},
                {RGB(0x10, 0x10, 0x10), COLOR_WINDOWTEXT},
                {RGB(0xC0, 0x10, 0x10), COLOR_WINDOWTEXT}},
    FaceColours{{RGB(0x1B, 0x1B, 0x1B), COLOR_WINDOW},
                {RGB(0xFF, 0xFF, 0xFF), COLOR_WINDOWTEXT},
                {RGB(0xFF, 0x7A, 0x6A), COLOR_WINDOWTEXT}},
};

constexpr KeyColours MakeKey(COLORREF face, COLORREF text, COLORREF edge, int system) {
    const COLORREF rim = RGB(GetRValue(face) * 5 / 8, GetGValue(face) * 5 / 8, GetBValue(face) * 5 / 8);
    return {{face, COLOR_BTNFACE}, {rim, system}, {text, system}, {edge, system}};
}
constexpr COLORREF KeyInk = RGB(0x14, 0x14, 0x14);
constexpr KeyColours BrassKey = MakeKey(RGB(0xE9, 0xB4, 0x4C), KeyInk, KeyInk, COLOR_BTNTEXT);
constexpr KeyColours PlainKey = MakeKey(RGB(0xF7, 0xF7, 0xF7), KeyInk, KeyInk, COLOR_BTNTEXT);
constexpr KeyColours DeadKey =
    MakeKey(RGB(0xC9, 0xC9, 0xC9), RGB(0x76, 0x76, 0x76), RGB(0x6E, 0x6E, 0x6E), COLOR_GRAYTEXT);

int WidthOf(HDC dc, HFONT font, const std::wstring& text) {
    const Selection selection(dc, font);
    SIZE size{};
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return static_cast<int>(size.cx);
}

}  // namespace

ClockPainter::ClockPainter(uint32_t background)
    : backgroundBrush({ColourOf(background), COLOR_BTNFACE}), panelBrush(PanelColour), runningBrush(RunningColour) {}

void ClockPainter::SetLayout(const ClockLayout& layout) {
    nameType = layout.NameType;
    blinkFont = MakeFont(layout.BlinkType, true);
    buttonFont = MakeFont(layout.ButtonType, true);
    pauseFont = MakeFont(layout.PauseType, true);
    textFont = MakeFont(layout.TextType, false);
    faceFont.reset();
}

HFONT ClockPainter::NameFont(Side side, const std::wstring& name, int width) {
    UniqueFont& font = nameFonts[side];
    font = MakeFont(nameType, true);
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const int wanted = WidthOf(dc.get(), font.get(), name);
    // A text's width does not shrink in exact proportion to its type. Below two thirds a name is cut rather than made
    // unreadable.
    if (wanted > width) font = MakeFont(std::max(MulDiv(nameType, width, wanted) - 1, nameType * 2 / 3), true);
    return font.get();
}

void ClockPainter::DrawPanel(HDC dc, const Box& panel, bool running) const {
    RECT area{panel.Left, panel.Top, panel.Right(), panel.Bottom()};
    FillRect(dc, &area, PanelBrush(running));
    Frame(dc, area, running ? MarkColour : EdgeColour);
    if (running) {
        InflateRect(&area, -1, -1);
        Frame(dc, area, MarkColour);
    }
}

void ClockPainter::DrawFace(const DRAWITEMSTRUCT& item, Side side, const std::wstring& text, bool fallen) const {
    const Buffered buffer(item);
    RECT area = buffer.Area();
    const FaceColours& colours = Faces[side];
    Fill(buffer.Dc(), area, colours.Ground);
    Frame(buffer.Dc(), area, EdgeColour);
    const Selection selection(buffer.Dc(), FaceFont(buffer.Dc(), text, area.right * 94 / 100, area.bottom));
    SetTextColor(buffer.Dc(), fallen ? colours.FallenInk : colours.Ink);
    DrawTextW(buffer.Dc(), text.c_str(), -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

HFONT ClockPainter::FaceFont(HDC dc, const std::wstring& text, int width, int height) const {
    const std::array<int, 3> wanted{static_cast<int>(text.size()), width, height};
    if (faceFont && faceFontFor == wanted) return faceFont.get();
    // All digits have the same width, so a font that suits this text suits every other of its length. Digits take seven
    // tenths of the type's height, so even type that is higher than the box fits into it.
    const int highest = height * 6 / 5;
    UniqueFont tall = MakeFont(highest, true);
    const int wide = WidthOf(dc, tall.get(), text);
    faceFont = wide > width ? MakeFont(MulDiv(highest, width, wide), true) : std::move(tall);
    faceFontFor = wanted;
    return faceFont.get();
}

void ClockPainter::DrawTurnMark(const DRAWITEMSTRUCT& item, bool arrow) const {
    const Buffered buffer(item);
    const RECT area = buffer.Area();
    if (!arrow) return Fill(buffer.Dc(), area, MarkColour);

    // The arrow is drawn larger and shrunk, which smooths its slopes.
    constexpr int factor = 4;
    const int width = area.right * factor, height = area.bottom * factor;
    const UniqueDc large(CreateCompatibleDC(buffer.Dc()));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(item.hDC, width, height));
    const Selection bitmapSelection(large.get(), bitmap.get());
    Fill(large.get(), {0, 0, width, height}, RunningColour);
    const UniqueBrush brush(CreateSolidBrush(MarkColour));
    const Selection brushSelection(large.get(), brush.get());
    const Selection penSelection(large.get(), GetStockObject(NULL_PEN));
    const std::array<POINT, 3> corners{POINT{0, 0}, POINT{width, height / 2}, POINT{0, height}};
    Polygon(large.get(), corners.data(), static_cast<int>(corners.size()));
    SetStretchBltMode(buffer.Dc(), HALFTONE);
    StretchBlt(buffer.Dc(), 0, 0, area.right, area.bottom, large.get(), 0, 0, width, height, SRCCOPY);
}

void ClockPainter::DrawPicture(const DRAWITEMSTRUCT& item, const Picture& picture, bool running) const {
    const Buffered buffer(item);
    const RECT area = buffer.Area();
    FillRect(buffer.Dc(), &area, PanelBrush(running));
    picture.Draw(buffer.Dc(), 0, 0, static_cast<int>(std::min(area.right, area.bottom)));
}

void ClockPainter::DrawClockButton(const DRAWITEMSTRUCT& item, const std::wstring& text, bool running) const {
    DrawKey(item, text, running, BrassKey, ButtonFont());
}

void ClockPainter::DrawPauseButton(const DRAWITEMSTRUCT& item, const std::wstring& text, bool running) const {
    DrawKey(item, text, running, PlainKey, PauseFont());
}

// A key stands out while it can be pressed and lies flat while it cannot.
void ClockPainter::DrawKey(const DRAWITEMSTRUCT& item, const std::wstring& text, bool running, const KeyColours& live,
                           HFONT font) const {
    const Buffered buffer(item);
    RECT area = buffer.Area();
    FillRect(buffer.Dc(), &area, PanelBrush(running));
    const bool enabled = !(item.itemState & ODS_DISABLED), down = (item.itemState & ODS_SELECTED) || !enabled;
    const LONG rise = std::max(area.bottom / 10, LONG{3});
    const KeyColours& colours = enabled ? live : DeadKey;

    Fill(buffer.Dc(), area, colours.Rim);
    RECT top = area;
    if (down) {
        top.top += rise * 2 / 3;
        RECT gone{area.left, area.top, area.right, top.top};
        FillRect(buffer.Dc(), &gone, PanelBrush(running));
        top.bottom -= rise / 3;
    } else {
        top.bottom -= rise;
    }
    Fill(buffer.Dc(), top, colours.Face);
    Frame(buffer.Dc(), {area.left, top.top, area.right, area.bottom}, colours.Edge);

    const Selection selection(buffer.Dc(), font);
    SetTextColor(buffer.Dc(), colours.Text);
    DrawTextW(buffer.Dc(), text.c_str(), -1, &top, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if (item.itemState & ODS_FOCUS) {
        InflateRect(&top, -static_cast<int>(rise / 2), -static_cast<int>(rise / 2));
        SetTextColor(buffer.Dc(), ClockPainter::Ink);
        DrawFocusRect(buffer.Dc(), &top);
    }
}
