#include "platform/Painting.h"

#include <algorithm>

namespace {

// A bitmap of 32 bits, so that the screen need not be asked for its format.
UniqueBitmap MakeBitmap(LONG width, LONG height) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(info.bmiHeader), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    return UniqueBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
}

}  // namespace

UniqueFont MakeFont(int height, bool bold) {
    return UniqueFont(CreateFontW(-std::max(height, 1), 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                                  DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                                  DEFAULT_PITCH | FF_SWISS, L"Arial"));
}

void Fill(HDC dc, const RECT& rectangle, COLORREF colour) {
    const UniqueBrush brush(CreateSolidBrush(colour));
    FillRect(dc, &rectangle, brush.get());
}

void Frame(HDC dc, const RECT& rectangle, COLORREF colour) {
    const UniqueBrush brush(CreateSolidBrush(colour));
    FrameRect(dc, &rectangle, brush.get());
}

Buffered::Buffered(const DRAWITEMSTRUCT& item)
    : target(item.hDC),
      at(item.rcItem),
      memory(CreateCompatibleDC(target)),
      bitmap(MakeBitmap(Area().right, Area().bottom)),
      selection(memory.get(), bitmap.get()) {
    SetBkMode(memory.get(), TRANSPARENT);
}

Buffered::~Buffered() { BitBlt(target, at.left, at.top, Area().right, Area().bottom, memory.get(), 0, 0, SRCCOPY); }
