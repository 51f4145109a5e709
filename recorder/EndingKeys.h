#pragma once

#include <windows.h>

// The keys that end what a control of the Scorlet is used for: they accept it or cancel it.
constexpr bool IsEndingKey(WPARAM key) { return key == VK_RETURN || key == VK_ESCAPE; }

// What a control adds to its answer to WM_GETDLGCODE, which came with that parameter, so that these keys come to it and
// not to the form's buttons.
inline LRESULT WantsEndingKeys(LPARAM lParam) {
    const auto* key = reinterpret_cast<const MSG*>(lParam);
    return key && key->message == WM_KEYDOWN && IsEndingKey(key->wParam) ? DLGC_WANTMESSAGE : 0;
}
