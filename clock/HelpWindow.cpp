#include "clock/HelpWindow.h"

#include "platform/Handles.h"
#include "platform/SystemError.h"

void HelpWindow::Open(HWND owner, TextId file) {
    if (held && IsWindow(held)) {
        SetForegroundWindow(held);
        return;
    }
    if (viewer.empty()) return messageBoxes.Inform(owner, texts(TextId::HelpViewerMissing));
    // The row begins with a backslash, the folder ends with one.
    const std::wstring name = texts(file);
    const std::wstring path = folder + (name.empty() ? name : name.substr(1));
    if (name.empty() || GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES)
        return messageBoxes.Inform(owner, texts.Compose(TextId::HelpFileMissing, path));

    std::wstring commandLine = L"\"" + viewer + L"\" \"" + path + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(viewer.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started)) {
        const std::wstring reason = texts.Reason(GetLastError());
        return messageBoxes.Inform(owner, texts.Compose(TextId::HelpNotStarted, viewer, reason));
    }
    const UniqueFile processHandle(started.hProcess), threadHandle(started.hThread);
    process = started.dwProcessId;
}

void HelpWindow::Watch(HWND first) {
    if (held && !IsWindow(held)) held = nullptr;
    if (held || process == 0) return;
    for (HWND window = first; window; window = GetWindow(window, GW_HWNDNEXT)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process && IsWindowVisible(window)) {
            held = window;
            return;
        }
    }
}

void HelpWindow::Close() {
    if (held && IsWindow(held)) SendMessageA(held, WM_CLOSE, 0, 0);
    held = nullptr;
}
