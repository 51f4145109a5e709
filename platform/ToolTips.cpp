#include "platform/ToolTips.h"

#include "platform/CommonControls.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

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
    const CommonControls controls;
    window = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
                             0, form.Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
}

void ToolTips::Set(int id, std::wstring text) const {
    TOOLINFOW tool =
        ToolOf(form.Window(), TTF_IDISHWND | TTF_SUBCLASS, reinterpret_cast<UINT_PTR>(form.Control(id)), text);
    Replace(tool);
}

void ToolTips::SetArea(int id, const RECT& area, std::wstring text) {
    areas[id] = {area, std::move(text)};
    if (window) ShowArea(id);
}

void ToolTips::ShowArea(int id) {
    Area& area = areas[id];
    TOOLINFOW tool = ToolOf(form.Window(), 0, static_cast<UINT_PTR>(id), area.Text);
    tool.rect = area.Place;
    Replace(tool);
}

void ToolTips::Relay(const MSG& message) {
    if (message.hwnd != form.Window()) return;
    const POINT at{GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
    const auto hasTip = [&] {
        return std::ranges::any_of(areas, [&](const auto& area) { return PtInRect(&area.second.Place, at); });
    };
    MSG relayed = message;
    if (!window && message.message == WM_MOUSEMOVE && hasTip()) {
        TRACKMOUSEEVENT hover{sizeof(hover), TME_HOVER, form.Window(), HOVER_DEFAULT};
        TrackMouseEvent(&hover);
    } else if (!window && message.message == WM_MOUSEHOVER) {
        Create();
        for (const auto& [id, area] : areas) ShowArea(id);
        relayed.message = WM_MOUSEMOVE;
    }
    const bool mouse = relayed.message >= WM_MOUSEFIRST && relayed.message <= WM_MOUSELAST;
    if (window && mouse) SendMessageW(window, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void ToolTips::Replace(TOOLINFOW& tool) const {
    SendMessageW(window, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(window, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}
