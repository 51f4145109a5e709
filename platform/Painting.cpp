#include "platform/Painting.h"

#include <algorithm>
#include <cmath>

UniqueFont MakeFont(int height, bool bold, int averageWidth) {
    return UniqueFont(CreateFontW(-std::max(height, 1), averageWidth, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE,
                                  FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                                  DEFAULT_PITCH | FF_SWISS, L"Arial"));
}

SIZE ExtentOf(HDC dc, HFONT font, const std::wstring& text) {
    const Selection selection(dc, font);
    SIZE size{};
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    return size;
}

void Fill(HDC dc, const RECT& rectangle, COLORREF colour) {
    const UniqueBrush brush(CreateSolidBrush(colour));
    FillRect(dc, &rectangle, brush.get());
}

void Frame(HDC dc, const RECT& rectangle, COLORREF colour) {
    const UniqueBrush brush(CreateSolidBrush(colour));
    FrameRect(dc, &rectangle, brush.get());
}

void FillRounded(HDC dc, const RECT& rectangle, int radius, COLORREF colour) {
    const auto [left, top, right, bottom] = rectangle;
    const int r = std::min({radius, static_cast<int>(right - left) / 2, static_cast<int>(bottom - top) / 2});
    if (r < 1) return Fill(dc, rectangle, colour);
    Fill(dc, {left, top + r, right, bottom - r}, colour);
    Fill(dc, {left + r, top, right - r, top + r}, colour);
    Fill(dc, {left + r, bottom - r, right - r, bottom}, colour);

    // A disc, whose edge lets through as much of what is there as it leaves free of each pixel.
    const int size = 2 * r;
    const TopDownBitmap disc(size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double covered = std::clamp(r + 0.5 - std::hypot(x + 0.5 - r, y + 0.5 - r), 0.0, 1.0);
            const auto part = [&](int channel) { return static_cast<uint32_t>(std::lround(channel * covered)); };
            disc.Pixels()[static_cast<size_t>(y) * static_cast<size_t>(size) + static_cast<size_t>(x)] =
                part(0xFF) << 24 | part(GetRValue(colour)) << 16 | part(GetGValue(colour)) << 8 |
                part(GetBValue(colour));
        }
    }
    const UniqueDc memory(CreateCompatibleDC(dc));
    const Selection selection(memory.get(), disc.Handle());
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    for (const bool atRight : {false, true}) {
        for (const bool atBottom : {false, true})
            GdiAlphaBlend(dc, atRight ? right - r : left, atBottom ? bottom - r : top, r, r, memory.get(),
                          atRight ? r : 0, atBottom ? r : 0, r, r, blend);
    }
}

Buffered::Buffered(const DRAWITEMSTRUCT& item)
    : target(item.hDC),
      at(item.rcItem),
      memory(CreateCompatibleDC(target)),
      bitmap(std::max<LONG>(Area().right, 1), std::max<LONG>(Area().bottom, 1)),
      selection(memory.get(), bitmap.Handle()) {
    SetBkMode(memory.get(), TRANSPARENT);
}

Buffered::~Buffered() {
    SetViewportOrgEx(memory.get(), 0, 0, nullptr);
    BitBlt(target, at.left, at.top, Area().right, Area().bottom, memory.get(), 0, 0, SRCCOPY);
}
