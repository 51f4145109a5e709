#include "clock/ClockPainter.h"

#include "platform/Look.h"
#include "platform/Painting.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Colour Own(uint32_t own, int system) { return {ColourOf(own), system}; }

constexpr Colour CardColour = Own(Look::Card, COLOR_WINDOW), LineColour = Own(Look::Line, COLOR_WINDOWTEXT);
constexpr Colour InkColour = Own(Look::Ink, COLOR_WINDOWTEXT), QuietColour = Own(Look::QuietInk, COLOR_WINDOWTEXT);

// How a state is shown: its frame, its mark, and the word and sign on that.
struct StateColours {
    Colour Frame, Mark, Ink;
};
constexpr StateColours RunningColours{Own(Look::Running, COLOR_HIGHLIGHT), Own(Look::Running, COLOR_HIGHLIGHT),
                                      Own(Look::RunningInk, COLOR_HIGHLIGHTTEXT)};
constexpr StateColours PausedColours{Own(Look::Paused, COLOR_WINDOWTEXT), Own(Look::PausedMark, COLOR_WINDOWTEXT),
                                     Own(Look::Paused, COLOR_WINDOW)};
constexpr StateColours FallenColours{Own(Look::Fallen, COLOR_HIGHLIGHT), Own(Look::Fallen, COLOR_HIGHLIGHT),
                                     Own(Look::FallenInk, COLOR_HIGHLIGHTTEXT)};

// Null for a state that has neither frame nor mark.
const StateColours* ColoursOf(PanelLook look) {
    switch (look) {
        case PanelLook::Running: return &RunningColours;
        case PanelLook::Paused: return &PausedColours;
        case PanelLook::Fallen: return &FallenColours;
        default: return nullptr;
    }
}

struct FaceColours {
    Colour Ground, Ink;
};
FaceColours FaceOf(PanelLook look, Side side) {
    const auto own = [side](const Look::FaceShades(&faces)[2], int ground, int ink) -> FaceColours {
        return {Own(faces[side].Ground, ground), Own(faces[side].Ink, ink)};
    };
    switch (look) {
        case PanelLook::Waiting: return own(Look::DimmedFaces, COLOR_WINDOW, COLOR_GRAYTEXT);
        case PanelLook::Paused: return own(Look::PausedFaces, COLOR_WINDOW, COLOR_WINDOWTEXT);
        case PanelLook::Fallen: return own(Look::FallenFaces, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT);
        default: return own(Look::FullFaces, COLOR_WINDOW, COLOR_WINDOWTEXT);
    }
}

struct KeyColours {
    Colour Top, Edge, Ink;
};
constexpr KeyColours BrassKey{Own(Look::Key, COLOR_BTNFACE), Own(Look::KeyEdge, COLOR_BTNTEXT),
                              Own(Look::KeyInk, COLOR_BTNTEXT)};
constexpr KeyColours PlainKey{Own(Look::PlainKey, COLOR_BTNFACE), Own(Look::PlainKeyEdge, COLOR_BTNTEXT),
                              Own(Look::KeyInk, COLOR_BTNTEXT)};
constexpr KeyColours DeadKey{Own(Look::DeadKey, COLOR_BTNFACE), Own(Look::DeadKeyEdge, COLOR_GRAYTEXT),
                             Own(Look::DeadKeyInk, COLOR_GRAYTEXT)};
// The line around a face: for a second period that begins, and for time that is low.
constexpr std::array MarkColours{Own(Look::PeriodLine, COLOR_HIGHLIGHT), Own(Look::LowTimeLine, COLOR_HIGHLIGHT)};
constexpr BYTE DeadPicture = 120;  // the strength of the hand on a key that cannot be pressed

// A key of that size. It stands out while it can be pressed and lies flat while it cannot. Returns its top.
RECT DrawKey(HDC dc, const Box& key, int corner, const KeyColours& colours, bool enabled) {
    const int rise = std::max(key.Height / 14, 2), line = std::max(key.Height / 60, 1);
    FillRounded(dc, {0, 0, key.Width, key.Height}, corner, colours.Edge);
    const RECT top{line, line, key.Width - line, key.Height - (enabled ? rise : line)};
    FillRounded(dc, top, corner - line, colours.Top);
    return top;
}

void WriteCentred(HDC dc, RECT area, HFONT font, COLORREF colour, const std::wstring& text) {
    const Selection selection(dc, font);
    SetTextColor(dc, colour);
    DrawTextW(dc, text.c_str(), -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

// A bar below the text of the key that has the focus.
void DrawFocus(HDC dc, const RECT& top, COLORREF colour) {
    const int width = static_cast<int>(top.right - top.left), height = static_cast<int>(top.bottom - top.top);
    const int bar = std::max(height / 18, 2);
    const int length = std::min(width / 3, height);
    const LONG left = top.left + (width - length) / 2, bottom = top.bottom - height / 9;
    FillRounded(dc, {left, bottom - bar, left + length, bottom}, bar / 2, colour);
}

// An arrow for a clock that runs, two bars for one that is paused.
void DrawSign(HDC dc, const RECT& area, PanelLook look, COLORREF ground, COLORREF ink) {
    const int width = static_cast<int>(area.right - area.left), height = static_cast<int>(area.bottom - area.top);
    if (look == PanelLook::Paused) {
        const LONG bar = std::max(width * 3 / 10, 1);
        Fill(dc, {area.left + width / 10, area.top, area.left + width / 10 + bar, area.bottom}, ink);
        Fill(dc, {area.right - width / 10 - bar, area.top, area.right - width / 10, area.bottom}, ink);
    }
    if (look != PanelLook::Running) return;
    // The arrow is drawn larger and shrunk, which smooths its slopes.
    constexpr int factor = 4;
    const UniqueDc large(CreateCompatibleDC(dc));
    const TopDownBitmap bitmap(width * factor, height * factor);
    const Selection bitmapSelection(large.get(), bitmap.Handle());
    Fill(large.get(), {0, 0, width * factor, height * factor}, ground);
    const UniqueBrush brush(CreateSolidBrush(ink));
    const Selection brushSelection(large.get(), brush.get());
    const Selection penSelection(large.get(), GetStockObject(NULL_PEN));
    const std::array<POINT, 3> corners{POINT{width * factor / 10, 0}, POINT{width * factor, height * factor / 2},
                                       POINT{width * factor / 10, height * factor}};
    Polygon(large.get(), corners.data(), static_cast<int>(corners.size()));
    SetStretchBltMode(dc, HALFTONE);
    StretchBlt(dc, area.left, area.top, width, height, large.get(), 0, 0, width * factor, height * factor, SRCCOPY);
}

}  // namespace

ClockPainter::ClockPainter(uint32_t background)
    : backgroundBrush(Own(background, COLOR_BTNFACE)), cardBrush(CardColour) {}

void ClockPainter::SetLayout(const ClockLayout& newLayout) {
    layout = newLayout;
    blinkFont = MakeFont(layout.BlinkType, true);
    buttonFont = MakeFont(layout.ButtonType, true);
    pauseFont = MakeFont(layout.PauseType, true);
    textFont = MakeFont(layout.TextType, false);
    faceType = {};
}

void ClockPainter::FitNames(const std::array<std::wstring, 2>& names) {
    nameFont = MakeFont(layout.NameType, true);
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const int width = layout.Panels[White].Name.Width;
    int wanted = width;
    for (const std::wstring& name : names)
        wanted = std::max(wanted, static_cast<int>(ExtentOf(dc.get(), nameFont.get(), name).cx));
    // A text's width does not shrink in exact proportion to its type. Below two thirds a name is cut rather than made
    // unreadable.
    if (wanted > width)
        nameFont = MakeFont(std::max(MulDiv(layout.NameType, width, wanted) - 1, layout.NameType * 2 / 3), true);
}

int ClockPainter::TextWidth(const std::wstring& text) const {
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    return static_cast<int>(ExtentOf(dc.get(), textFont.get(), text).cx);
}

COLORREF ClockPainter::NameColour(PanelLook look) { return look == PanelLook::Waiting ? QuietColour : InkColour; }
COLORREF ClockPainter::LabelColour() { return QuietColour; }

const ClockPainter::FaceType& ClockPainter::TypeFor(const std::wstring& text) {
    if (faceType.Characters == text.size()) return faceType;
    const Box& face = layout.Panels[White].Face;
    const UniqueDc dc(CreateCompatibleDC(nullptr));

    // First in a type as high as the face, which tells the type's proportions.
    const UniqueFont trial = MakeFont(face.Height, true);
    const Selection selection(dc.get(), trial.get());
    const int wide = std::max(static_cast<int>(ExtentOf(dc.get(), trial.get(), text).cx), 1);
    GLYPHMETRICS digit{};
    constexpr MAT2 identity{{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    if (GetGlyphOutlineW(dc.get(), L'8', GGO_METRICS, &digit, 0, nullptr, &identity) == GDI_ERROR || !digit.gmBlackBoxY)
        digit.gmBlackBoxY = static_cast<UINT>(std::max(face.Height * 7 / 10, 1));
    const double high = digit.gmBlackBoxY;
    const DigitSize size = FitDigits(face.Width, face.Height, wide / high);

    TEXTMETRICW metrics{};
    GetTextMetricsW(dc.get(), &metrics);
    const double own = metrics.tmAveCharWidth * size.Height / high;  // the average width of the type at that height
    const double narrowing = size.Width / (size.Height * wide / high);
    const double narrowest = std::ceil(own * FaceDigits::Narrowest);
    const int average = narrowing < 0.99 ? static_cast<int>(std::max(std::round(own * narrowing), narrowest)) : 0;

    FaceType type;
    type.Characters = text.size();
    type.Font = MakeFont(static_cast<int>(std::lround(face.Height * size.Height / high)), true, average);
    type.Digit = static_cast<int>(ExtentOf(dc.get(), type.Font.get(), L"0").cx);
    type.Colon = static_cast<int>(ExtentOf(dc.get(), type.Font.get(), L":").cx);
    const auto colons = static_cast<int>(std::count(text.begin(), text.end(), L':'));
    type.Left = (face.Width - type.Colon * colons - type.Digit * (static_cast<int>(text.size()) - colons)) / 2;
    const int height = static_cast<int>(std::lround(size.Height)), margin = std::max(height / 30, 1);
    type.Baseline = (face.Height + height) / 2;
    type.Top = type.Baseline - height - margin;
    type.Bottom = type.Baseline + margin;
    faceType = std::move(type);
    return faceType;
}

std::vector<RECT> ClockPainter::Cells(const std::wstring& text) {
    const FaceType& type = TypeFor(text);
    std::vector<RECT> cells;
    LONG left = type.Left;
    for (const wchar_t character : text) {
        const LONG right = left + (character == L':' ? type.Colon : type.Digit);
        cells.push_back({left, type.Top, right, type.Bottom});
        left = right;
    }
    return cells;
}

RECT ClockPainter::ChangedPart(const std::wstring& before, const std::wstring& after) {
    const Box& face = layout.Panels[White].Face;
    if (before.size() != after.size()) return {0, 0, face.Width, face.Height};
    const std::vector<RECT> cells = Cells(after);
    RECT changed{};
    for (size_t i = 0; i < cells.size(); ++i) {
        if (before[i] != after[i]) UnionRect(&changed, &changed, &cells[i]);
    }
    return changed;
}

void ClockPainter::DrawFace(const DRAWITEMSTRUCT& item, Side side, PanelLook look, FaceMark mark,
                            const std::wstring& text) {
    const auto [ground, ink] = FaceOf(look, side);
    const std::vector<RECT> cells = Cells(text);
    const FaceType& type = TypeFor(text);
    const auto write = [&, ink = ink, ground = ground](HDC dc) {
        const Selection font(dc, type.Font.get());
        SetTextAlign(dc, TA_BASELINE | TA_CENTER);
        SetTextColor(dc, ink);
        SetBkColor(dc, ground);
        for (size_t i = 0; i < cells.size(); ++i) {
            if (RectVisible(dc, &cells[i]))
                ExtTextOutW(dc, (cells[i].left + cells[i].right) / 2, type.Baseline, ETO_OPAQUE | ETO_CLIPPED,
                            &cells[i], &text[i], 1, nullptr);
        }
    };

    // Only digits have changed: each is drawn in one go with its ground, straight into the window.
    RECT asked{}, all{};
    if (!cells.empty()) UnionRect(&all, &cells.front(), &cells.back());
    GetClipBox(item.hDC, &asked);
    if (UnionRect(&asked, &asked, &all) && EqualRect(&asked, &all)) {
        write(item.hDC);
        return;
    }
    const Buffered buffer(item);
    Fill(buffer.Dc(), buffer.Area(), CardColour);
    // A line around a face keeps one that is as bright as the card apart from it.
    RECT area = buffer.Area();
    const bool fallen = look == PanelLook::Fallen, marked = mark != FaceMark::None;
    const int line = marked   ? std::max(static_cast<int>(area.bottom) / 16, 3)
                     : fallen ? std::max(static_cast<int>(area.bottom) / 30, 2)
                              : 1;
    FillRounded(buffer.Dc(), area, layout.FaceCorner,
                marked   ? MarkColours[mark == FaceMark::TimeLow]
                : fallen ? FallenColours.Frame
                         : LineColour);
    InflateRect(&area, -line, -line);
    FillRounded(buffer.Dc(), area, layout.FaceCorner - line / 2, ground);
    write(buffer.Dc());
}

void ClockPainter::DrawPanel(HDC dc, Side side, PanelLook look, const std::wstring& word) const {
    const PanelLayout& panel = layout.Panels[side];
    const StateColours* state = ColoursOf(look);
    RECT area = RectOf(panel.Panel);
    FillRounded(dc, area, layout.CardCorner, state ? state->Frame : LineColour);
    const int frame = state ? panel.Frame : 1;
    InflateRect(&area, -frame, -frame);
    FillRounded(dc, area, std::max(layout.CardCorner - frame, layout.CardCorner / 3), CardColour);
    if (!state) return;
    FillRounded(dc, RectOf(panel.Mark), panel.Mark.Height / 2, state->Mark);
    DrawSign(dc, RectOf(panel.Sign), look, state->Mark, state->Ink);
    // The word of a flag that has fallen has no sign before it.
    RECT place = RectOf(panel.Blink);
    if (look == PanelLook::Fallen) place.left = panel.Sign.Left;
    WriteWord(dc, place, look, word);
}

void ClockPainter::WriteWord(HDC dc, const RECT& area, PanelLook look, const std::wstring& word) const {
    const StateColours* state = ColoursOf(look);
    if (!state || word.empty()) return Fill(dc, area, state ? state->Mark : CardColour);
    // The word and its ground in one go: nothing flickers without a buffer, and it blinks all the time.
    UniqueFont smaller;
    const Selection font(dc, BlinkFont());
    const LONG width = area.right - area.left;
    SIZE size{};
    GetTextExtentPoint32W(dc, word.c_str(), static_cast<int>(word.size()), &size);
    if (size.cx > width) {
        // One less, since a text's width does not shrink in exact proportion to its type.
        smaller = MakeFont(MulDiv(layout.BlinkType, width, size.cx) - 1, true);
        SelectObject(dc, smaller.get());
        GetTextExtentPoint32W(dc, word.c_str(), static_cast<int>(word.size()), &size);
    }
    SetTextColor(dc, state->Ink);
    SetBkColor(dc, state->Mark);
    ExtTextOutW(dc, (area.left + area.right - size.cx) / 2, (area.top + area.bottom - size.cy) / 2,
                ETO_OPAQUE | ETO_CLIPPED, &area, word.c_str(), static_cast<UINT>(word.size()), nullptr);
}

void ClockPainter::DrawMarkWord(const DRAWITEMSTRUCT& item, PanelLook look, const std::wstring& word) const {
    WriteWord(item.hDC, item.rcItem, look, word);
}

void ClockPainter::DrawTurnMark(const DRAWITEMSTRUCT& item, Side side, size_t mark) const {
    const Buffered buffer(item);
    const Box place = layout.Panels[side].TurnMarks()[mark];
    FillRect(buffer.Dc(), &item.rcItem, BackgroundBrush());
    buffer.DrawAsPart(place.Left, place.Top);
    DrawPanel(buffer.Dc(), side, PanelLook::Running, L"");
}

void ClockPainter::DrawFlag(const DRAWITEMSTRUCT& item, const Picture& flag, bool fallen) const {
    const Buffered buffer(item);
    const RECT area = buffer.Area();
    Fill(buffer.Dc(), area, CardColour);
    const int side = static_cast<int>(std::min(area.right, area.bottom)), size = fallen ? side : side * 3 / 5;
    flag.Draw(buffer.Dc(), 0, (side - size) / 2, size);
}

void ClockPainter::DrawHand(const DRAWITEMSTRUCT& item, Side side, const Picture& hand, bool enabled) const {
    const Buffered buffer(item);
    const PanelLayout& panel = layout.Panels[side];
    Fill(buffer.Dc(), buffer.Area(), CardColour);
    const RECT top = DrawKey(buffer.Dc(), panel.Key, layout.KeyCorner, enabled ? BrassKey : DeadKey, enabled);
    const int height = static_cast<int>(top.bottom - top.top);
    const int size = std::min(height * 6 / 10, panel.Hand.Width * 8 / 10);
    hand.Draw(buffer.Dc(), (panel.Hand.Width - size) * 2 / 3, static_cast<int>(top.top) + (height - size) / 2, size,
              enabled ? BYTE{255} : DeadPicture);
}

void ClockPainter::DrawClockButton(const DRAWITEMSTRUCT& item, Side side, const std::wstring& text) const {
    const Buffered buffer(item);
    const PanelLayout& panel = layout.Panels[side];
    const bool enabled = !(item.itemState & ODS_DISABLED);
    const KeyColours& colours = enabled ? BrassKey : DeadKey;
    Fill(buffer.Dc(), buffer.Area(), CardColour);
    buffer.DrawAsPart(panel.ClockButton.Left - panel.Key.Left, 0);
    const RECT top = DrawKey(buffer.Dc(), panel.Key, layout.KeyCorner, colours, enabled);
    WriteCentred(buffer.Dc(), top, ButtonFont(), colours.Ink, text);
    if (item.itemState & ODS_FOCUS) DrawFocus(buffer.Dc(), top, colours.Ink);
}

void ClockPainter::DrawPauseButton(const DRAWITEMSTRUCT& item, const std::wstring& text) const {
    const Buffered buffer(item);
    const Box key{0, 0, static_cast<int>(buffer.Area().right), static_cast<int>(buffer.Area().bottom)};
    const bool enabled = !(item.itemState & ODS_DISABLED);
    const KeyColours& colours = enabled ? PlainKey : DeadKey;
    Fill(buffer.Dc(), buffer.Area(), CardColour);
    const RECT top = DrawKey(buffer.Dc(), key, layout.KeyCorner, colours, enabled);
    WriteCentred(buffer.Dc(), top, PauseFont(), colours.Ink, text);
    if (item.itemState & ODS_FOCUS) DrawFocus(buffer.Dc(), top, colours.Ink);
}
