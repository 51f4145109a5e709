#include "tests/desktop/TextFit.h"

#include "platform/Dpi.h"
#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr int DropButton = 26, CheckMark = 20, ButtonEdges = 10;  // in the 96 dpi design

std::string Shown(const std::wstring& text) { return {text.begin(), text.end()}; }

void ExpectFits(HWND control, const std::wstring& text, int taken, bool wraps) {
    if (text.empty()) return;
    RECT area{};
    GetClientRect(control, &area);
    const SIZE size = SizeOfText(control, text, wraps ? static_cast<int>(area.right) : 0);
    EXPECT_LE(size.cx + taken, area.right) << GetDlgCtrlID(control) << ": " << Shown(text);
    EXPECT_LE(size.cy, area.bottom) << GetDlgCtrlID(control) << ": " << Shown(text);
}

void ExpectFitsControl(HWND control) {
    std::array<wchar_t, 256> kind{}, text{};
    GetClassNameW(control, kind.data(), static_cast<int>(kind.size()));
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
    const auto is = [&](const wchar_t* name) { return lstrcmpiW(kind.data(), name) == 0; };
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(control, GWL_STYLE));
    if (is(L"STATIC")) {
        const DWORD type = style & SS_TYPEMASK;
        if (type != SS_OWNERDRAW) ExpectFits(control, text.data(), 0, !(style & SS_CENTERIMAGE));
    } else if (is(L"BUTTON")) {
        const DWORD type = style & BS_TYPEMASK;
        if (type != BS_OWNERDRAW)
            ExpectFits(control, text.data(), type == BS_AUTOCHECKBOX ? CheckMark : ButtonEdges, false);
    } else if (is(L"COMBOBOX")) {
        const LRESULT count = SendMessageW(control, CB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            SendMessageW(control, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text.data()));
            RECT area{};
            GetClientRect(control, &area);
            EXPECT_LE(SizeOfText(control, text.data()).cx + DropButton, area.right) << Shown(text.data());
        }
    }
}

}  // namespace

void ExpectTextsFit(HWND form) {
    for (HWND control = GetWindow(form, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT))
        ExpectFitsControl(control);
}

void ScaleTo(HWND window, int dpi) {
    RECT area{};
    GetWindowRect(window, &area);
    const int from = DpiOf(window);
    area.right = area.left + MulDiv(area.right - area.left, dpi, from);
    area.bottom = area.top + MulDiv(area.bottom - area.top, dpi, from);
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&area));
}

SIZE SizeOfText(HWND control, const std::wstring& text, int wrappedWidth) {
    const HDC dc = GetDC(control);
    RECT area{0, 0, wrappedWidth, 0};
    {
        const Selection selection(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
        DrawTextW(dc, text.c_str(), -1, &area, DT_CALCRECT | (wrappedWidth ? DT_WORDBREAK : DT_SINGLELINE));
    }
    ReleaseDC(control, dc);
    return {area.right, area.bottom};
}
