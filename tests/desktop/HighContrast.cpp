#include "tests/desktop/HighContrast.h"

#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

constexpr std::array<INT, 7> Indexes{COLOR_WINDOW,   COLOR_WINDOWTEXT, COLOR_BTNFACE,      COLOR_BTNTEXT,
                                     COLOR_GRAYTEXT, COLOR_HIGHLIGHT,  COLOR_HIGHLIGHTTEXT};
constexpr std::array<COLORREF, 7> Strange{RGB(10, 20, 60),   RGB(250, 240, 90), RGB(20, 50, 20), RGB(240, 200, 250),
                                          RGB(90, 200, 130), RGB(200, 30, 230), RGB(30, 30, 30)};

bool on = false;

BOOL WINAPI AnswerParameter(UINT action, UINT number, PVOID value, UINT flags) {
    static const auto system = reinterpret_cast<decltype(&SystemParametersInfoW)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SystemParametersInfoW")));
    const BOOL done = system(action, number, value, flags);
    if (action == SPI_GETHIGHCONTRAST && on) static_cast<HIGHCONTRASTW*>(value)->dwFlags |= HCF_HIGHCONTRASTON;
    return done;
}

bool OfTheSystem(COLORREF colour) { return std::find(Strange.begin(), Strange.end(), colour) != Strange.end(); }

// A memory bitmap to draw on.
struct Paper {
    LONG Width, Height;
    UniqueDc Dc{CreateCompatibleDC(nullptr)};
    UniqueBitmap Bitmap;
    Selection Selection;

    explicit Paper(const RECT& area)
        : Width(area.right), Height(area.bottom), Bitmap(Make(Width, Height)), Selection(Dc.get(), Bitmap.get()) {}

    static HBITMAP Make(LONG width, LONG height) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    }

    COLORREF MostUsed() const {
        std::map<COLORREF, int> counts;
        for (LONG y = 0; y < Height; y += 2) {
            for (LONG x = 0; x < Width; x += 2) ++counts[GetPixel(Dc.get(), x, y)];
        }
        const auto less = [](const auto& one, const auto& other) { return one.second < other.second; };
        return std::max_element(counts.begin(), counts.end(), less)->first;
    }
};

}  // namespace

// By way of this pointer every call of the function goes in a program that is linked with this file.
extern "C" {
extern decltype(&SystemParametersInfoW) const __imp_SystemParametersInfoW;
decltype(&SystemParametersInfoW) const __imp_SystemParametersInfoW = AnswerParameter;
}

HighContrastOn::HighContrastOn() {
    for (size_t i = 0; i < Indexes.size(); ++i) previous[i] = GetSysColor(Indexes[i]);
    SetSysColors(static_cast<INT>(Indexes.size()), Indexes.data(), Strange.data());
    on = true;
}

HighContrastOn::~HighContrastOn() {
    on = false;
    SetSysColors(static_cast<INT>(Indexes.size()), Indexes.data(), previous.data());
}

void ExpectSystemColours(HWND form) {
    for (HWND control = GetWindow(form, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        std::array<wchar_t, 16> kind{};
        GetClassNameW(control, kind.data(), static_cast<int>(kind.size()));
        const auto style = static_cast<DWORD>(GetWindowLongPtrW(control, GWL_STYLE));
        const bool isStatic = lstrcmpiW(kind.data(), L"STATIC") == 0, isButton = lstrcmpiW(kind.data(), L"BUTTON") == 0;
        const bool drawn =
            (isStatic && (style & SS_TYPEMASK) == SS_OWNERDRAW) || (isButton && (style & BS_TYPEMASK) == BS_OWNERDRAW);
        RECT area{};
        GetClientRect(control, &area);
        if (area.right == 0 || area.bottom == 0) continue;
        const Paper paper(area);
        const int id = GetDlgCtrlID(control);
        const auto dc = reinterpret_cast<WPARAM>(paper.Dc.get());
        if (drawn) {
            DRAWITEMSTRUCT item{};
            item.CtlType = isButton ? ODT_BUTTON : ODT_STATIC;
            item.CtlID = static_cast<UINT>(id);
            item.hwndItem = control;
            item.hDC = paper.Dc.get();
            item.rcItem = area;
            item.itemState = IsWindowEnabled(control) ? 0 : ODS_DISABLED;
            SendMessageW(form, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
            // A picture may be larger than the ground that it leaves.
            EXPECT_TRUE(OfTheSystem(paper.MostUsed()) || OfTheSystem(GetPixel(paper.Dc.get(), 0, 0)))
                << id << std::hex << ": " << paper.MostUsed();
        } else if (isStatic) {
            const auto brush =
                reinterpret_cast<HBRUSH>(SendMessageW(form, WM_CTLCOLORSTATIC, dc, reinterpret_cast<LPARAM>(control)));
            FillRect(paper.Dc.get(), &area, brush);
            EXPECT_TRUE(OfTheSystem(paper.MostUsed())) << id << std::hex << ": " << paper.MostUsed();
            EXPECT_TRUE(OfTheSystem(GetTextColor(paper.Dc.get()))) << id << std::hex << GetTextColor(paper.Dc.get());
        }
    }
    // Changed while the window is open: all of it is to be drawn anew.
    ASSERT_TRUE(IsWindowVisible(form));
    HWND first = GetWindow(form, GW_CHILD);
    while (!IsWindowVisible(first)) first = GetWindow(first, GW_HWNDNEXT);
    for (const UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE}) {
        RedrawWindow(form, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
        ASSERT_FALSE(GetUpdateRect(first, nullptr, FALSE));
        SendMessageW(form, message, SPI_SETHIGHCONTRAST, 0);
        EXPECT_TRUE(GetUpdateRect(first, nullptr, FALSE)) << message;
    }
}
