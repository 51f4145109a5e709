#include "tests/app/FormChecks.h"

#include "platform/TopDownBitmap.h"
#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {

constexpr int DropButton = 26, CheckMark = 20, ButtonEdges = 10;  // in the 96 dpi design

DWORD StyleOf(HWND control) { return static_cast<DWORD>(GetWindowLongPtrW(control, GWL_STYLE)); }

bool IsButton(HWND control, DWORD type) {
    return IsKind(control, L"BUTTON") && (StyleOf(control) & BS_TYPEMASK) == type;
}
bool IsDrawn(HWND control) {
    return IsButton(control, BS_OWNERDRAW) ||
           (IsKind(control, L"STATIC") && (StyleOf(control) & SS_TYPEMASK) == SS_OWNERDRAW);
}

// Not every system's library knows the rule for every kind of field.
bool HasLabelBefore(HWND control) {
    const HWND before = GetWindow(control, GW_HWNDPREV);
    return (IsKind(control, L"COMBOBOX") || IsKind(control, L"LISTBOX")) && before && IsKind(before, L"STATIC") &&
           StyleOf(before) & WS_VISIBLE && !TextOf(before).empty();
}

std::vector<HWND> ControlsOf(HWND form, DWORD style) {
    std::vector<HWND> controls;
    for (HWND control = GetWindow(form, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        if ((StyleOf(control) & style) == style) controls.push_back(control);
    }
    return controls;
}

constexpr std::array<INT, 7> Indexes{COLOR_WINDOW,   COLOR_WINDOWTEXT, COLOR_BTNFACE,      COLOR_BTNTEXT,
                                     COLOR_GRAYTEXT, COLOR_HIGHLIGHT,  COLOR_HIGHLIGHTTEXT};
constexpr std::array<COLORREF, 7> Strange{RGB(10, 20, 60),   RGB(250, 240, 90), RGB(20, 50, 20), RGB(240, 200, 250),
                                          RGB(90, 200, 130), RGB(200, 30, 230), RGB(30, 30, 30)};
bool highContrast = false;

BOOL WINAPI AnswerParameter(UINT action, UINT number, PVOID value, UINT flags) {
    static const auto system = reinterpret_cast<decltype(&SystemParametersInfoW)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "SystemParametersInfoW")));
    const BOOL done = system(action, number, value, flags);
    if (action == SPI_GETHIGHCONTRAST && highContrast)
        static_cast<HIGHCONTRASTW*>(value)->dwFlags |= HCF_HIGHCONTRASTON;
    return done;
}

class HighContrastOn {
  public:
    HighContrastOn() {
        for (size_t i = 0; i < Indexes.size(); ++i) previous[i] = GetSysColor(Indexes[i]);
        Set(true, Strange);
    }
    ~HighContrastOn() { Set(false, previous); }

  private:
    static void Set(bool on, const std::array<COLORREF, 7>& colours) {
        SetSysColors(static_cast<INT>(Indexes.size()), Indexes.data(), colours.data());
        highContrast = on;
    }
    std::array<COLORREF, 7> previous;
};

bool OfTheSystem(COLORREF colour) { return std::find(Strange.begin(), Strange.end(), colour) != Strange.end(); }

// Whether the ground of what `draw` draws has a colour of the system: most of it, or a corner where a picture lies on
// it.
template <typename Drawing>
bool DrawnOnSystemColours(const RECT& area, Drawing draw) {
    const TopDownBitmap bitmap(area.right, area.bottom);
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const Selection selection(dc.get(), bitmap.Handle());
    draw(dc.get());
    GdiFlush();
    const auto ofTheSystem = [](uint32_t pixel) {
        return OfTheSystem(RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF));
    };
    const std::span<uint32_t> pixels = bitmap.Pixels();
    const auto count = static_cast<size_t>(std::count_if(pixels.begin(), pixels.end(), ofTheSystem));
    return ofTheSystem(pixels[0]) || count * 2 > pixels.size();
}

}  // namespace

// By way of this pointer every call of the function goes in a program that is linked with this file.
extern "C" {
extern decltype(&SystemParametersInfoW) const __imp_SystemParametersInfoW;
decltype(&SystemParametersInfoW) const __imp_SystemParametersInfoW = AnswerParameter;
}

void ExpectFits(HWND control, const std::wstring& text, int taken, bool wraps) {
    if (text.empty()) return;
    RECT area{};
    GetClientRect(control, &area);
    RECT needed{0, 0, area.right - taken, 0};
    {
        const WindowDc dc(control);
        const Selection font(dc.Dc(), reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
        DrawTextW(dc.Dc(), text.c_str(), -1, &needed, DT_CALCRECT | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
    }
    EXPECT_LE(needed.right + taken, area.right) << GetDlgCtrlID(control) << ": " << Utf8(text);
    EXPECT_LE(needed.bottom, area.bottom) << GetDlgCtrlID(control) << ": " << Utf8(text);
}

void ExpectReadable(HWND form) {
    const std::vector<HWND> controls = ControlsOf(form, WS_VISIBLE);
    for (size_t i = 0; i < controls.size(); ++i) {
        const int id = GetDlgCtrlID(controls[i]);
        EXPECT_TRUE(!SpokenName(controls[i]).empty() || HasLabelBefore(controls[i])) << id << " has no name";
        const RECT first = AreaOf(controls[i]);
        for (size_t j = i + 1; j < controls.size(); ++j) {
            const RECT second = AreaOf(controls[j]);
            const bool oneRow = second.top < first.bottom && first.top < second.bottom;
            const bool oneColumn = second.left < first.right && first.left < second.right;
            const bool back = (oneRow && second.right <= first.left) || (oneColumn && second.bottom <= first.top);
            RECT both{};
            const bool held = IntersectRect(&both, &first, &second) && EqualRect(&both, &first);
            EXPECT_FALSE(back || (held && IsButton(controls[j], BS_GROUPBOX)))
                << id << " comes before " << GetDlgCtrlID(controls[j]);
        }
    }
}

void ExpectTextsFit(HWND form, bool drawnTexts) {
    for (const HWND control : ControlsOf(form, 0)) {
        const std::wstring text = TextOf(control);
        if (IsDrawn(control)) {
            if (drawnTexts) ExpectFits(control, text, 0);
        } else if (IsKind(control, L"STATIC")) {
            ExpectFits(control, text, 0, !(StyleOf(control) & SS_CENTERIMAGE));
        } else if (IsKind(control, L"BUTTON")) {
            const bool marked = IsButton(control, BS_AUTOCHECKBOX) || IsButton(control, BS_AUTORADIOBUTTON);
            ExpectFits(control, text, marked ? CheckMark : ButtonEdges);
        } else if (IsKind(control, L"COMBOBOX")) {
            for (LRESULT i = SendMessageW(control, CB_GETCOUNT, 0, 0) - 1; i >= 0; --i) {
                std::array<wchar_t, 256> entry{};
                SendMessageW(control, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(entry.data()));
                ExpectFits(control, entry.data(), DropButton);
            }
        }
    }
}

GreyPicture GreyOf(HWND form, const Box& part) {
    RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const TopDownBitmap bitmap(part.Width, part.Height);
    {
        const WindowDc window = WindowDc::OverChildren(form);
        const UniqueDc dc(CreateCompatibleDC(nullptr));
        const Selection selection(dc.get(), bitmap.Handle());
        BitBlt(dc.get(), 0, 0, part.Width, part.Height, window.Dc(), part.Left, part.Top, SRCCOPY);
        GdiFlush();
    }
    GreyPicture picture{part.Width, part.Height, {}};
    for (const uint32_t pixel : bitmap.Pixels()) {
        const auto linear = [&](int shift) { return std::pow((pixel >> shift & 0xFF) / 255.0, 2.2); };
        picture.Pixels.push_back(0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0));
    }
    return picture;
}

bool DifferInGrey(const GreyPicture& one, const GreyPicture& other) {
    const auto differ = [](double first, double second) {
        return std::max(first, second) + 0.05 >= 3 * (std::min(first, second) + 0.05);
    };
    const auto mean = [](const GreyPicture& picture) {
        return std::accumulate(picture.Pixels.begin(), picture.Pixels.end(), 0.0) /
               static_cast<double>(picture.Pixels.size());
    };
    if (differ(mean(one), mean(other))) return true;
    // A shape is a row of squares that differ all over, each a little further down than the one before.
    const int stroke = std::max(one.Height / 100, 1);
    std::vector<int> shapeTop(one.Pixels.size(), -1);
    const auto at = [&](int x, int y) { return static_cast<size_t>(y * one.Width + x); };
    for (int y = 0; y + stroke <= one.Height; ++y) {
        for (int x = 0; x + stroke <= one.Width; ++x) {
            bool whole = true;
            for (int i = 0; i < stroke * stroke && whole; ++i) {
                const size_t pixel = at(x + i % stroke, y + i / stroke);
                whole = differ(one.Pixels[pixel], other.Pixels[pixel]);
            }
            if (!whole) continue;
            const int above = y > 0 ? shapeTop[at(x, y - 1)] : -1;
            shapeTop[at(x, y)] = above >= 0 ? above : y;
            if ((y + stroke - shapeTop[at(x, y)]) * 20 >= one.Height) return true;
        }
    }
    return false;
}

void ExpectSystemColours(HWND form) {
    const HighContrastOn contrast;
    for (const HWND control : ControlsOf(form, 0)) {
        RECT area{};
        GetClientRect(control, &area);
        if (area.right == 0 || area.bottom == 0) continue;
        const int id = GetDlgCtrlID(control);
        if (IsDrawn(control)) {
            DRAWITEMSTRUCT item{};
            item.CtlType = IsKind(control, L"BUTTON") ? ODT_BUTTON : ODT_STATIC;
            item.CtlID = static_cast<UINT>(id);
            item.hwndItem = control;
            item.rcItem = area;
            item.itemState = IsWindowEnabled(control) ? 0 : ODS_DISABLED;
            EXPECT_TRUE(DrawnOnSystemColours(area, [&](HDC dc) {
                item.hDC = dc;
                SendMessageW(form, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
            })) << id;
        } else if (IsKind(control, L"STATIC")) {
            EXPECT_TRUE(DrawnOnSystemColours(area, [&](HDC dc) {
                const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
                    form, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control)));
                FillRect(dc, &area, brush);
                EXPECT_TRUE(OfTheSystem(GetTextColor(dc))) << id << std::hex << GetTextColor(dc);
            })) << id;
        }
    }
    const std::vector<HWND> shown = ControlsOf(form, WS_VISIBLE);
    for (const UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE}) {
        RedrawWindow(form, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
        ASSERT_FALSE(GetUpdateRect(shown[0], nullptr, FALSE));
        SendMessageW(form, message, SPI_SETHIGHCONTRAST, 0);
        EXPECT_TRUE(GetUpdateRect(shown[0], nullptr, FALSE)) << message;
    }
}
