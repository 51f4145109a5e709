#pragma once

#include "platform/Handles.h"
#include "platform/SystemError.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

// A 32-bit bitmap whose pixels, BGRA and the top row first, can be reached. Throws SystemError.
class TopDownBitmap {
  public:
    TopDownBitmap(int width, int height) : count(static_cast<size_t>(width) * static_cast<size_t>(height)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        if (!bitmap) throw SystemError(ERROR_NOT_ENOUGH_MEMORY, L"DIB");
        pixels = static_cast<uint32_t*>(bits);
    }

    HBITMAP Handle() const { return bitmap.get(); }
    UniqueBitmap Release() { return std::move(bitmap); }
    // What has been drawn lies in them after GdiFlush.
    std::span<uint32_t> Pixels() const { return {pixels, count}; }

  private:
    UniqueBitmap bitmap;
    uint32_t* pixels = nullptr;
    size_t count;
};
