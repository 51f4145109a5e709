#include "clock/HelpWindow.h"

#include "platform/SystemError.h"

void HelpWindow::Open(HWND owner, TextId file) {
    Watch(GetWindow(owner, GW_HWNDFIRST));
    if (held) {
        if (IsIconic(held)) ShowWindow(held, SW_RESTORE);
        SetForegroundWindow(held);
        return;
    }
    // A viewer that has been started and shows no window yet will.
    if (process && WaitForSingleObject(process.get(), 0) == WAIT_TIMEOUT) return;
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
    CloseHandle(started.hThread);
    process.reset(started.hProcess);
}

void HelpWindow::Watch(HWND first) {
    if (held && !IsWindow(held)) held = nullptr;
    if (held || !process) return;
    const DWORD viewerId = GetProcessId(process.get());
    for (HWND window = first; window; window = GetWindow(window, GW_HWNDNEXT)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == viewerId && IsWindowVisible(window)) {
            held = window;
            return;
        }
    }
}

void HelpWindow::Close(HWND first) {
    Watch(first);
    if (held) SendMessageA(held, WM_CLOSE, 0, 0);
    held = nullptr;
}
