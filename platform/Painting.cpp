#include "platform/Painting.h"

#include <algorithm>

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
      bitmap(std::max<LONG>(Area().right, 1), std::max<LONG>(Area().bottom, 1)),
      selection(memory.get(), bitmap.Handle()) {
    SetBkMode(memory.get(), TRANSPARENT);
}

Buffered::~Buffered() { BitBlt(target, at.left, at.top, Area().right, Area().bottom, memory.get(), 0, 0, SRCCOPY); }
