#include "platform/ToolTips.h"

namespace {

// The size of the first version of the structure, which every version of the common controls accepts.
TOOLINFOW ToolOf(HWND form, UINT flags, UINT_PTR id, std::wstring& text) {
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = flags;
    tool.hwnd = form;
    tool.uId = id;
    tool.lpszText = text.data();
    return tool;
}

}  // namespace

void ToolTips::Create() {
    window = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
                             0, form.Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
}

void ToolTips::Set(int id, std::wstring text) const {
    TOOLINFOW tool =
        ToolOf(form.Window(), TTF_IDISHWND | TTF_SUBCLASS, reinterpret_cast<UINT_PTR>(form.Control(id)), text);
    Replace(tool);
}

void ToolTips::SetArea(int id, const RECT& area, std::wstring text) const {
    TOOLINFOW tool = ToolOf(form.Window(), 0, static_cast<UINT_PTR>(id), text);
    tool.rect = area;
    Replace(tool);
}

void ToolTips::Relay(MSG& message) const {
    const bool mouse = message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
    if (mouse && message.hwnd == form.Window())
        SendMessageW(window, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
}

void ToolTips::Replace(TOOLINFOW& tool) const {
    SendMessageW(window, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(window, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
