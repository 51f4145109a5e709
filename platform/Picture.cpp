#include "platform/Picture.h"

#include "platform/Colours.h"
#include "platform/SystemError.h"
#include "platform/TopDownBitmap.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace {

// The pixels of what `draw` puts on a plain background.
template <typename Drawing>
TopDownBitmap DrawnOn(uint32_t ground, int width, int height, Drawing draw) {
    TopDownBitmap bitmap(width, height);
    const std::span<uint32_t> pixels = bitmap.Pixels();
    std::fill(pixels.begin(), pixels.end(), ground);
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const Selection selection(dc.get(), bitmap.Handle());
    draw(dc.get());
    GdiFlush();
    return bitmap;
}

// Drawing on black and on white tells how much of the background shows through each pixel, whatever form of
// transparency the source has.
template <typename Drawing>
TopDownBitmap WithTransparency(int width, int height, Drawing draw) {
    TopDownBitmap onBlack = DrawnOn(0x000000, width, height, draw);
    const TopDownBitmap onWhite = DrawnOn(0xFFFFFF, width, height, draw);
    auto white = onWhite.Pixels().begin();
    for (uint32_t& pixel : onBlack.Pixels()) {
        const uint32_t blue = *white++ & 0xFF, through = blue - std::min(pixel & 0xFF, blue);
        // What was drawn on black is premultiplied already.
        pixel = (pixel & 0xFFFFFF) | (0xFF - through) << 24;
    }
    return onBlack;
}

// Puts a colour under the picture and around it, as far as the outline reaches, in a square of premultiplied pixels.
void AddOutline(std::span<uint32_t> pixels, int size, COLORREF colour) {
    const std::vector<uint32_t> picture(pixels.begin(), pixels.end());
    const std::array<uint32_t, 4> channels{GetBValue(colour), GetGValue(colour), GetRValue(colour), 0xFF};
    const int reach = std::max(size / 24, 1);
    const auto at = [size](int x, int y) {
        return static_cast<size_t>(y) * static_cast<size_t>(size) + static_cast<size_t>(x);
    };
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            uint32_t nearest = 0;
            for (int row = std::max(y - reach, 0); row <= std::min(y + reach, size - 1); ++row) {
                for (int column = std::max(x - reach, 0); column <= std::min(x + reach, size - 1); ++column)
                    nearest = std::max(nearest, picture[at(column, row)] >> 24);
            }
            uint32_t& pixel = pixels[at(x, y)];
            const uint32_t through = nearest * (0xFF - (pixel >> 24)) / 0xFF;
            for (size_t channel = 0; channel < 4; ++channel) pixel += channels[channel] * through / 0xFF << 8 * channel;
        }
    }
}

}  // namespace

Picture::Picture(IPicture& source) {
    OLE_XSIZE_HIMETRIC sourceWidth = 0;
    OLE_YSIZE_HIMETRIC sourceHeight = 0;
    source.get_Width(&sourceWidth);
    source.get_Height(&sourceHeight);
    const WindowDc screen(nullptr);
    constexpr int himetricPerInch = 2540;
    width = MulDiv(sourceWidth, GetDeviceCaps(screen.Dc(), LOGPIXELSX), himetricPerInch);
    height = MulDiv(sourceHeight, GetDeviceCaps(screen.Dc(), LOGPIXELSY), himetricPerInch);
    HRESULT status = S_OK;
    const TopDownBitmap bitmap = WithTransparency(width, height, [&](HDC dc) {
        const HRESULT rendered =
            source.Render(dc, 0, 0, width, height, 0, sourceHeight, sourceWidth, -sourceHeight, nullptr);
        if (FAILED(rendered)) status = rendered;
    });
    Pack(bitmap.Pixels());
    if (FAILED(status)) throw SystemError(CodeOf(status), L"GIF");
}

Picture Picture::OfIcon(const wchar_t* resourceName, int size) {
    const UniqueIcon icon(static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), resourceName, IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
    if (!icon) throw SystemError(GetLastError(), resourceName);
    Picture picture;
    picture.width = picture.height = size;
    const TopDownBitmap bitmap = WithTransparency(
        size, size, [&](HDC dc) { DrawIconEx(dc, 0, 0, icon.get(), size, size, 0, nullptr, DI_NORMAL); });
    picture.Pack(bitmap.Pixels());
    return picture;
}

void Picture::Pack(std::span<const uint32_t> pixels) {
    for (const uint32_t pixel : pixels) {
        if (runs.empty() || runs.back().Pixel != pixel) runs.push_back({pixel, 0});
        ++runs.back().Length;
    }
    runs.shrink_to_fit();
}

std::vector<uint32_t> Picture::Unpacked() const {
    std::vector<uint32_t> pixels;
    pixels.reserve(static_cast<size_t>(width) * static_cast<size_t>(height));
    for (const Run& run : runs) pixels.insert(pixels.end(), run.Length, run.Pixel);
    return pixels;
}

void Picture::Draw(HDC dc, int left, int top, int size, BYTE strength) const {
    if (Empty() || size <= 0) return;
    const UniqueDc memory(CreateCompatibleDC(dc));
    const Selection selection(memory.get(), OfSize(size));
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, strength, AC_SRC_ALPHA};
    // The same function as AlphaBlend, in a library that every program has loaded.
    GdiAlphaBlend(dc, left, top, size, size, memory.get(), 0, 0, size, size, blend);
}

HBITMAP Picture::OfSize(int size) const {
    const COLORREF outline = HighContrast() ? GetSysColor(COLOR_WINDOWTEXT) : CLR_INVALID;
    for (const Ready& one : ready) {
        if (one.Size == size && one.Outline == outline) return one.Bitmap.get();
    }
    ready[1] = std::exchange(ready[0], {size, outline, Shrunk(size, outline)});
    return ready[0].Bitmap.get();
}

UniqueBitmap Picture::Shrunk(int size, COLORREF outline) const {
    const std::vector<uint32_t> pixels = Unpacked();
    TopDownBitmap bitmap(size, size);
    for (int y = 0; y < size; ++y) {
        const int top = y * height / size, bottom = std::max((y + 1) * height / size, top + 1);
        for (int x = 0; x < size; ++x) {
            const int left = x * width / size, right = std::max((x + 1) * width / size, left + 1);
            std::array<uint32_t, 4> sums{};
            for (int row = top; row < bottom; ++row) {
                for (int column = left; column < right; ++column) {
                    const uint32_t pixel =
                        pixels[static_cast<size_t>(row) * static_cast<size_t>(width) + static_cast<size_t>(column)];
                    for (size_t channel = 0; channel < 4; ++channel) sums[channel] += pixel >> (8 * channel) & 0xFF;
                }
            }
            const uint32_t area = static_cast<uint32_t>((bottom - top) * (right - left));
            uint32_t mean = 0;
            for (size_t channel = 0; channel < 4; ++channel)
                mean |= ((sums[channel] + area / 2) / area) << (8 * channel);
            bitmap.Pixels()[static_cast<size_t>(y) * static_cast<size_t>(size) + static_cast<size_t>(x)] = mean;
        }
    }
    if (outline != CLR_INVALID) AddOutline(bitmap.Pixels(), size, outline);
    return bitmap.Release();
}
