#pragma once

#include "base/Box.h"
#include "platform/Handles.h"
#include "platform/TopDownBitmap.h"

#include <windows.h>

#include <string>

// What the forms' painters share.

inline RECT RectOf(const Box& box) { return {box.Left, box.Top, box.Right(), box.Bottom()}; }

// Arial of that height in pixels, at least 1. With an average width of its characters, in pixels too, it is narrowed or
// widened to that; 0 leaves it as it is.
UniqueFont MakeFont(int height, bool bold, int averageWidth = 0);

// The size of a text in one line, in pixels.
SIZE ExtentOf(HDC dc, HFONT font, const std::wstring& text);

void Fill(HDC dc, const RECT& rectangle, COLORREF colour);
void Frame(HDC dc, const RECT& rectangle, COLORREF colour);

// Fills a rectangle whose corners are smooth quarters of a circle of that radius, in pixels. Throws SystemError.
void FillRounded(HDC dc, const RECT& rectangle, int radius, COLORREF colour);

// Draws an owner-drawn control off the screen, so that it changes without flicker. Text is drawn without a background.
class Buffered {
  public:
    explicit Buffered(const DRAWITEMSTRUCT& item);
    ~Buffered();
    Buffered(const Buffered&) = delete;
    Buffered& operator=(const Buffered&) = delete;

    HDC Dc() const { return memory.get(); }
    RECT Area() const { return {0, 0, at.right - at.left, at.bottom - at.top}; }
    // Has the control drawn as a part, with its top left at this point, of something larger.
    void DrawAsPart(int left, int top) const { SetViewportOrgEx(memory.get(), -left, -top, nullptr); }

  private:
    HDC target;
    RECT at;
    UniqueDc memory;
    TopDownBitmap bitmap;  // a bitmap of the screen's form would take longer to make
    Selection selection;
};
