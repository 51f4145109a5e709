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

// The channels of pixels, added up.
class ChannelSums {
  public:
    void Add(uint32_t pixel) {
        even += Spread(pixel);
        odd += Spread(pixel >> 8);
    }

    uint32_t Mean(uint32_t count) const {
        const auto mean = [&](uint64_t sums) {
            return (Low(sums) + count / 2) / count | (Low(sums >> 32) + count / 2) / count << 16;
        };
        return mean(even) | mean(odd) << 8;
    }

  private:
    // Two channels in the two halves of a number, so that one addition serves both.
    static uint64_t Spread(uint32_t pixel) { return (pixel & 0xFF) | static_cast<uint64_t>(pixel & 0xFF0000) << 16; }
    static uint32_t Low(uint64_t sums) { return static_cast<uint32_t>(sums); }

    uint64_t even = 0, odd = 0;
};

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
    // A pixel of a GIF is there or not, so one drawing on a colour that no picture has tells the transparency.
    constexpr uint32_t key = 0x01FE02;
    const TopDownBitmap bitmap = DrawnOn(key, width, height, [&](HDC dc) {
        status = source.Render(dc, 0, 0, width, height, 0, sourceHeight, sourceWidth, -sourceHeight, nullptr);
    });
    for (uint32_t& pixel : bitmap.Pixels()) {
        const uint32_t colour = pixel & 0xFFFFFF;
        pixel = colour == key ? 0 : 0xFF000000 | colour;
    }
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

void Picture::Draw(HDC dc, int left, int top, int size, BYTE strength) const {
    if (Empty() || size <= 0) return;
    // A larger square takes the picture as it is, stretched.
    const int own = std::min({size, width, height});
    const UniqueDc memory(CreateCompatibleDC(dc));
    const Selection selection(memory.get(), OfSize(own));
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, strength, AC_SRC_ALPHA};
    // The same function as AlphaBlend, in a library that every program has loaded.
    GdiAlphaBlend(dc, left, top, size, size, memory.get(), 0, 0, own, own, blend);
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
    TopDownBitmap bitmap(size, size);
    std::vector<ChannelSums> sums(static_cast<size_t>(size));
    // Row by row while the runs are unpacked, since getting memory for the whole takes longer than filling it.
    auto run = runs.begin();
    uint32_t left = run->Length;
    for (int y = 0; y < size; ++y) {
        const int top = y * height / size, bottom = (y + 1) * height / size;
        std::fill(sums.begin(), sums.end(), ChannelSums());
        for (int row = top; row < bottom; ++row) {
            for (int x = 0; x < size; ++x) {
                for (int column = x * width / size; column < (x + 1) * width / size; ++column) {
                    if (left == 0) left = (++run)->Length;
                    --left;
                    sums[static_cast<size_t>(x)].Add(run->Pixel);
                }
            }
        }
        for (int x = 0; x < size; ++x) {
            const int columns = (x + 1) * width / size - x * width / size;
            bitmap.Pixels()[static_cast<size_t>(y) * static_cast<size_t>(size) + static_cast<size_t>(x)] =
                sums[static_cast<size_t>(x)].Mean(static_cast<uint32_t>((bottom - top) * columns));
        }
    }
    if (outline != CLR_INVALID) AddOutline(bitmap.Pixels(), size, outline);
    return bitmap.Release();
}
