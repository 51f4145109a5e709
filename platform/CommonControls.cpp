#include "platform/CommonControls.h"

#include <commctrl.h>

namespace {

// The system's record of the manifest that names the version.
HANDLE ContextOfControls() {
    ACTCTXW wanted{};
    wanted.cbSize = sizeof(wanted);
    wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.hModule = GetModuleHandleW(nullptr);
    wanted.lpResourceName = MAKEINTRESOURCEW(100);
    return CreateActCtxW(&wanted);
}

bool Load() {
    const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
    return InitCommonControlsEx(&controls);
}

}  // namespace

CommonControls::CommonControls() {
    // Static: one record serves all windows, and the library is loaded once.
    static const HANDLE context = ContextOfControls();
    if (!ActivateActCtx(context, &cookie)) cookie = 0;
    [[maybe_unused]] static const bool loaded = Load();
}

CommonControls::~CommonControls() {
    if (cookie) DeactivateActCtx(0, cookie);
}
