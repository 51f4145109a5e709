#include "recorder/DragPicture.h"

#include "platform/TopDownBitmap.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

void DragPicture::Show(HWND owner, const Picture& picture, int pictureSize, POINT middle) {
    Hide();
    size = pictureSize;
    window =
        CreateWindowExW(WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, WC_STATICW, L"",
                        WS_POPUP | WS_DISABLED, 0, 0, size, size, owner, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window) throw SystemError(GetLastError(), WC_STATICW);
    const TopDownBitmap bitmap(size, size);
    std::ranges::fill(bitmap.Pixels(), 0);
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const Selection selection(dc.get(), bitmap.Handle());
    picture.Draw(dc.get(), 0, 0, size);
    GdiFlush();
    POINT place{middle.x - size / 2, middle.y - size / 2}, origin{};
    SIZE extent{size, size};
    BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    UpdateLayeredWindow(window, nullptr, &place, &extent, dc.get(), &origin, 0, &blend, ULW_ALPHA);
    ShowWindow(window, SW_SHOWNOACTIVATE);
}

void DragPicture::MoveTo(POINT middle) const {
    SetWindowPos(window, nullptr, middle.x - size / 2, middle.y - size / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DragPicture::Hide() {
    if (window) DestroyWindow(std::exchange(window, nullptr));
}
