#include "platform/Form.h"

#include "base/RunTimeError.h"
#include "platform/Ansi.h"
#include "platform/CommonControls.h"
#include "platform/Dpi.h"
#include "platform/SpokenControl.h"
#include "platform/SystemError.h"

#include <commctrl.h>

#include <optional>
#include <string_view>

RECT WorkArea(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

bool IsOfKind(HWND control, const wchar_t* kind) {
    wchar_t name[32]{};
    return GetClassNameW(control, name, 32) && lstrcmpiW(name, kind) == 0;
}

void SetShutHeight(HWND list, int height) {
    // Systems differ in what they add to the height that can be set.
    RECT area{};
    GetWindowRect(list, &area);
    const LRESULT line = SendMessageW(list, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
    SendMessageW(list, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), line + height - (area.bottom - area.top));
}

Form::~Form() {
    if (window) DestroyWindow(window);
}

void Form::Create(const wchar_t* name, const std::wstring& caption, DWORD style, HICON icon, HWND owner) {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hIcon = icon;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = name;
    // A class that is already registered serves again when the form is opened anew.
    if (!RegisterClassExW(&windowClass) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        throw SystemError(GetLastError(), name);
    // The window is made on its owner's screen, and so with that screen's resolution.
    RECT place{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};
    if (owner) GetWindowRect(owner, &place);
    if (!CreateWindowExW(WS_EX_CONTROLPARENT, name, caption.c_str(), style, place.left, place.top, 0, 0, owner, nullptr,
                         GetModuleHandleW(nullptr), this))
        throw SystemError(GetLastError(), name);
}

LRESULT Form::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool contrastChanged = message == WM_SETTINGCHANGE && wParam == SPI_SETHIGHCONTRAST;
    if (message == WM_SYSCOLORCHANGE || contrastChanged)
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    if (message == WM_DPICHANGED) {
        dpi = HIWORD(wParam);
        const RECT& wanted = *reinterpret_cast<const RECT*>(lParam);
        SetWindowPos(window, nullptr, wanted.left, wanted.top, wanted.right - wanted.left, wanted.bottom - wanted.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK Form::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* form = static_cast<Form*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        form->window = window;
        form->dpi = DpiOf(window);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
    }
    Form* form = FormOf(window);
    if (!form) return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        form->window = nullptr;
        form->controls.clear();
        return DefWindowProcW(window, message, wParam, lParam);
    }
    // An exception must not reach the system, which calls this.
    try {
        return form->Handle(message, wParam, lParam);
    } catch (const std::exception& error) {
        form->ShowError(error);
        return 0;
    }
}

void Form::ShowError(const std::exception& error) const {
    std::wstring reason;
    if (const auto* failure = dynamic_cast<const SystemError*>(&error)) {
        reason = failure->Thing() + L": " + texts.Reason(failure->Code());
    } else if (const auto* fault = dynamic_cast<const RunTimeError*>(&error)) {
        reason = texts(fault->What() == Fault::Overflow ? TextId::ReasonOverflow : TextId::ReasonOutOfRange);
    } else {
        reason = FromAnsi(error.what());
    }
    messageBoxes.Inform(window, texts.Compose(TextId::UnexpectedError, reason));
}

HWND Form::AddControl(const wchar_t* kind, int id, DWORD style) {
    // A static looks the same in both versions, and the Scorlet has a hundred of them.
    std::optional<CommonControls> controlsOfDialogs;
    if (!HasPlainControls() && std::wstring_view(kind) != WC_STATICW) controlsOfDialogs.emplace();
    const HWND control =
        CreateWindowExW(0, kind, L"", WS_CHILD | style, 0, 0, 0, 0, window,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    if (!control) throw SystemError(GetLastError(), kind);
    SpeakWithForm(control);
    controls[id] = control;
    return control;
}

HWND Form::Control(int id) const {
    const auto found = controls.find(id);
    return found != controls.end() ? found->second : nullptr;
}

std::wstring Form::Text(int id) const {
    const HWND control = Control(id);
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(control)), L'\0');
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

void Form::SetVisible(int id, bool visible) const {
    const HWND control = Control(id);
    const bool now = GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE;
    if (visible != now) ShowWindow(control, visible ? SW_SHOWNA : SW_HIDE);
}

std::wstring Form::SpokenNameOf(HWND control, int part) {
    const Form* form = FormOf(GetParent(control));
    if (!form) return {};
    const int id = GetDlgCtrlID(control);
    return part == 0 ? form->SpokenName(id) : form->SpokenPart(id, part);
}

void Form::SetText(int id, const std::wstring& text) const {
    // Setting an unchanged text would still repaint the control.
    if (Text(id) != text) SetWindowTextW(Control(id), text.c_str());
}
