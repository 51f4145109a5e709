#pragma once

#include "platform/Handles.h"
#include "platform/TopDownBitmap.h"

#include <windows.h>

// What the forms' painters share.

// Arial of that height in pixels, at least 1.
UniqueFont MakeFont(int height, bool bold);

void Fill(HDC dc, const RECT& rectangle, COLORREF colour);
void Frame(HDC dc, const RECT& rectangle, COLORREF colour);

// Draws an owner-drawn control off the screen, so that it changes without flicker. Text is drawn without a background.
class Buffered {
  public:
    explicit Buffered(const DRAWITEMSTRUCT& item);
    ~Buffered();
    Buffered(const Buffered&) = delete;
    Buffered& operator=(const Buffered&) = delete;

    HDC Dc() const { return memory.get(); }
    RECT Area() const { return {0, 0, at.right - at.left, at.bottom - at.top}; }

  private:
    HDC target;
    RECT at;
    UniqueDc memory;
    TopDownBitmap bitmap;  // a bitmap of the screen's form would take longer to make
    Selection selection;
};
