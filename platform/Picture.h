#pragma once

#include "platform/Handles.h"

#include <windows.h>

#include <olectl.h>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

// A picture with soft edges that is drawn at any size. It is kept as runs of premultiplied 32-bit pixels and shrunk by
// averaging areas; the last two sizes drawn are kept ready. At high contrast an outline in the system's text colour
// makes it stand out from any background.
class Picture {
  public:
    Picture() = default;

    // Takes a resource picture with its transparency. Throws SystemError.
    explicit Picture(IPicture& source);

    // The picture of an icon resource; `size`, in pixels, is that of its largest image. Throws SystemError.
    static Picture OfIcon(const wchar_t* resourceName, int size);

    bool Empty() const { return runs.empty(); }

    // Draws the whole picture into a square, over what is there; with less than the full strength of 255 that shows
    // through.
    void Draw(HDC dc, int left, int top, int size, BYTE strength = 255) const;

  private:
    // Consecutive pixels of one colour. Runs take a tenth of the memory that the pixels would.
    struct Run {
        uint32_t Pixel;  // BGRA
        uint32_t Length;
    };

    struct Ready {
        int Size = 0;
        COLORREF Outline = CLR_INVALID;
        UniqueBitmap Bitmap;
    };

    void Pack(std::span<const uint32_t> pixels);
    HBITMAP OfSize(int size) const;
    UniqueBitmap Shrunk(int size, COLORREF outline) const;

    int width = 0, height = 0;
    std::vector<Run> runs;  // top row first
    mutable std::array<Ready, 2> ready;
};
