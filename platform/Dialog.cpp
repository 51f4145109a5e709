#include "platform/Dialog.h"

#include "platform/Dpi.h"
#include "platform/OtherWindowsDisabled.h"
#include "platform/Painting.h"

#include <commctrl.h>

#include <algorithm>

namespace {

constexpr int TypeHeight = 13;  // of the 96 dpi design
constexpr Colour Ink{RGB(0, 0, 0), COLOR_BTNTEXT};

}  // namespace

Dialog::Dialog(const Surroundings& around)
    : Form(around), background({ColourOf(around.System.Look.BackgroundColour), COLOR_BTNFACE}) {}

void Dialog::Create(HWND owner, const wchar_t* name, TextId caption, const wchar_t* icon, int width, int height,
                    std::span<const DialogItem> controls) {
    items = controls;
    Form::Create(name, captions(caption), WS_POPUP | WS_CAPTION | WS_SYSMENU,
                 LoadIconW(GetModuleHandleW(nullptr), icon), owner);
    for (const DialogItem& item : items) {
        // The arrow keys move between consecutive buttons: they form one group.
        const bool button = lstrcmpW(item.Kind, WC_BUTTONW) == 0 && (item.Style & BS_TYPEMASK) != BS_GROUPBOX;
        AddControl(item.Kind, item.Id, WS_VISIBLE | item.Style | (button ? 0 : WS_GROUP));
        if (item.Text) SetText(item.Id, captions(*item.Text));
    }
    Place(owner, width, height);
}

// Centres the window on its owner, and keeps it on the screen.
void Dialog::Place(HWND owner, int width, int height) {
    const RECT screen = WorkArea(owner);
    RECT around{}, client{};
    GetWindowRect(owner, &around);
    // What the frame adds is known only once the window has a size.
    const int wide = Scaled(width, Dpi()), high = Scaled(height, Dpi());
    SetWindowPos(Window(), nullptr, 0, 0, wide, high, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    GetClientRect(Window(), &client);
    const LONG fullWidth = 2 * wide - client.right, fullHeight = 2 * high - client.bottom;
    const LONG left =
        std::max(std::min((around.left + around.right - fullWidth) / 2, screen.right - fullWidth), screen.left);
    const LONG top =
        std::max(std::min((around.top + around.bottom - fullHeight) / 2, screen.bottom - fullHeight), screen.top);
    SetWindowPos(Window(), nullptr, left, top, fullWidth, fullHeight, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Dialog::Arrange() {
    UniqueFont previous = std::move(font);
    font = MakeFont(Scaled(TypeHeight, Dpi()), false);
    for (const DialogItem& item : items) {
        const Box& box = item.Box;
        SendMessageW(Control(item.Id), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
        SetWindowPos(Control(item.Id), nullptr, Scaled(box.Left, Dpi()), Scaled(box.Top, Dpi()),
                     Scaled(box.Width, Dpi()), Scaled(box.Height, Dpi()), SWP_NOZORDER | SWP_NOACTIVATE);
    }
    RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
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
            if (IsDialogMessageW(Window(), &message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
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
            SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
            SetTextColor(reinterpret_cast<HDC>(wParam), Ink);
            return reinterpret_cast<LRESULT>(background.get());
        case WM_ERASEBKGND: {
            RECT client{};
            GetClientRect(Window(), &client);
            FillRect(reinterpret_cast<HDC>(wParam), &client, background.get());
            return TRUE;
        }
        case WM_SIZE: Arrange(); return 0;
        case WM_CLOSE: Close(); return 0;
        default: return Form::Handle(message, wParam, lParam);
    }
}
