#include "platform/Dialog.h"

#include "platform/Dpi.h"
#include "platform/GroupBox.h"
#include "platform/OtherWindowsDisabled.h"
#include "platform/Painting.h"

#include <commctrl.h>

#include <algorithm>

namespace {

// Of the 96 dpi design.
constexpr int ScrollStep = 20;

Colour Own(uint32_t colour) { return {ColourOf(colour), COLOR_BTNFACE}; }

}  // namespace

Dialog::Dialog(const Surroundings& around, DialogColours colours)
    : Form(around), ground(Own(colours.Ground)), card(Own(colours.Card)), cardColour(Own(colours.Card)) {}

void Dialog::Create(HWND owner, const wchar_t* name, TextId caption, const wchar_t* icon, Extent size,
                    std::span<const DialogItem> controls) {
    items = controls;
    Form::Create(name, captions(caption), WS_POPUP | WS_CAPTION | WS_SYSMENU,
                 LoadIconW(GetModuleHandleW(nullptr), icon), owner);
    for (const DialogItem& item : items) {
        // The arrow keys move between consecutive buttons: they form one group.
        const bool button = item.IsButton() && !item.IsGroup();
        AddControl(item.Kind, item.Id, WS_VISIBLE | item.Style | (button ? 0 : WS_GROUP));
        if (item.IsGroup()) DrawHeadingOnly(Control(item.Id));
        if (item.Text) SetText(item.Id, captions(*item.Text));
    }
    design = size;
    Place(owner);
}

// Centres the window on a window, which may be itself, and fits it into that one's screen.
void Dialog::Place(HWND on) {
    const RECT screen = WorkArea(on);
    RECT around{}, window{}, client{};
    GetWindowRect(on, &around);
    // What the frame adds is known only once the window has a size.
    ShowScrollBar(Window(), SB_BOTH, FALSE);
    SetWindowPos(Window(), nullptr, 0, 0, design.Width, design.Height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    GetWindowRect(Window(), &window);
    GetClientRect(Window(), &client);
    const LONG frameWidth = window.right - window.left - client.right;
    const LONG frameHeight = window.bottom - window.top - client.bottom;

    const int bar = MulDiv(GetSystemMetrics(SM_CXVSCROLL), Dpi(), DpiOf(nullptr));
    fit = FitDialog(design, Dpi(),
                    {static_cast<int>(screen.right - screen.left - frameWidth),
                     static_cast<int>(screen.bottom - screen.top - frameHeight)},
                    bar);
    scroll.Set(Window(), {Scaled(design.Width, fit.Dpi), Scaled(design.Height, fit.Dpi)},
               {fit.Client.Width - (fit.ScrollsDown ? bar : 0), fit.Client.Height - (fit.ScrollsAcross ? bar : 0)},
               Scaled(ScrollStep, fit.Dpi));
    const LONG width = fit.Client.Width + frameWidth, height = fit.Client.Height + frameHeight;
    const LONG left = std::max(std::min((around.left + around.right - width) / 2, screen.right - width), screen.left);
    const LONG top = std::max(std::min((around.top + around.bottom - height) / 2, screen.bottom - height), screen.top);
    SetWindowPos(Window(), nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    Arrange();
}

RECT Dialog::PlaceOf(const DialogItem& item) const {
    const POINT origin = scroll.Origin();
    const LONG left = origin.x + Scaled(item.Box.Left, fit.Dpi), top = origin.y + Scaled(item.Box.Top, fit.Dpi);
    return {left, top, left + Scaled(item.Box.Width, fit.Dpi), top + Scaled(item.Box.Height, fit.Dpi)};
}

void Dialog::Arrange() {
    const auto previous = std::exchange(fonts, {});
    for (const DialogItem& item : items) {
        UniqueFont& font = fonts[{item.Type.Height, item.Type.Bold}];
        if (!font) font = MakeFont(Scaled(item.Type.Height, fit.Dpi), item.Type.Bold);
        SendMessageW(Control(item.Id), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
        const auto [left, top, right, bottom] = PlaceOf(item);
        SetWindowPos(Control(item.Id), nullptr, left, top, right - left, bottom - top, SWP_NOZORDER | SWP_NOACTIVATE);
        if (std::wstring_view(item.Kind) == WC_COMBOBOXW)
            SetShutHeight(Control(item.Id), Scaled(DialogItem::FieldHeight, fit.Dpi));
    }
    RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Dialog::DrawGround(HDC dc) const {
    RECT client{};
    GetClientRect(Window(), &client);
    FillRect(dc, &client, ground.get());
    for (const DialogItem& item : items) {
        if (item.IsCard()) DrawCard(dc, PlaceOf(item), Scaled(Look::CardCorner, fit.Dpi), cardColour);
    }
}

// Prepares the writing of a control's text, and returns the brush of what is below it.
HBRUSH Dialog::DrawOnGround(HDC dc, int id) const {
    const auto found = std::find_if(items.begin(), items.end(), [=](const DialogItem& item) { return item.Id == id; });
    SetBkMode(dc, TRANSPARENT);
    if (found == items.end()) return ground.get();
    SetTextColor(dc, InkOf(found->Type));
    const bool onCard = std::any_of(items.begin(), items.end(), [&](const DialogItem& item) {
        return item.IsCard() && item.Box.Left <= found->Box.Left && found->Box.Right() <= item.Box.Right() &&
               item.Box.Top <= found->Box.Top && found->Box.Top < item.Box.Bottom();
    });
    return onCard ? card.get() : ground.get();
}

// With the label above it.
void Dialog::BringFocusIntoSight() {
    const HWND focused = GetFocus();
    if (!Window() || !IsChild(Window(), focused)) return;
    RECT area{};
    GetWindowRect(focused, &area);
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&area), 2);
    const int margin = Scaled(ScrollStep, fit.Dpi);
    InflateRect(&area, margin, margin);
    scroll.BringIntoSight(area);
}

void Dialog::RunModal() {
    {
        const OtherWindowsDisabled others(Window());
        open = true;
        ShowWindow(Window(), SW_SHOW);
        MSG message{};
        while (open && Window()) {
            if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
                // The program is ending: its main loop must see that too.
                PostQuitMessage(static_cast<int>(message.wParam));
                break;
            }
            if (!IsDialogMessageW(Window(), &message)) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
            // Not after a click, which would then end elsewhere than it began.
            if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) BringFocusIntoSight();
        }
    }
    // Only after the owner has been enabled again: otherwise the system would activate another program's window.
    if (Window()) DestroyWindow(Window());
}

void Dialog::Close() {
    open = false;
    // The loop looks at `open` only after a message.
    PostMessageW(Window(), WM_NULL, 0, 0);
}

int Dialog::EnterButton() const {
    const HWND focused = GetFocus();
    const bool button = SendMessageW(focused, WM_GETDLGCODE, 0, 0) & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON);
    return focused && button ? GetDlgCtrlID(focused) : DefaultButton();
}

LRESULT Dialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case DM_GETDEFID:
            if (const int id = EnterButton()) return MAKELRESULT(id, DC_HASDEFID);
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE) {
                focus = GetFocus();
            } else if (!IsChild(Window(), GetFocus())) {
                const HWND first = GetNextDlgTabItem(Window(), nullptr, FALSE);
                const bool takesFocus = first && GetWindowLongPtrW(first, GWL_STYLE) & WS_TABSTOP;
                SetFocus(focus ? focus : takesFocus ? first : Window());
            }
            return 0;
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
            return reinterpret_cast<LRESULT>(
                DrawOnGround(reinterpret_cast<HDC>(wParam), GetDlgCtrlID(reinterpret_cast<HWND>(lParam))));
        case WM_ERASEBKGND: DrawGround(reinterpret_cast<HDC>(wParam)); return TRUE;
        case WM_VSCROLL:
        case WM_HSCROLL: scroll.OnScroll(message, LOWORD(wParam)); return 0;
        case WM_MOUSEWHEEL:
            if (scroll.OnWheel(GET_WHEEL_DELTA_WPARAM(wParam))) return 0;
            break;
        // The screen has become another one.
        case WM_DPICHANGED:
        case WM_DISPLAYCHANGE:
            Form::Handle(message, wParam, lParam);
            Place(Window());
            return 0;
        case WM_SETTINGCHANGE:
            if (wParam == SPI_SETWORKAREA) Place(Window());
            break;
        case WM_CLOSE: Close(); return 0;
        default: break;
    }
    return Form::Handle(message, wParam, lParam);
}
