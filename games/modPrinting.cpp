#include "games/modPrinting.h"

#include "platform/Handles.h"

#include <array>
#include <cstring>

namespace {

constexpr ULONGLONG EditorPatience = 5000, ClipboardPatience = 1000;  // milliseconds

// The class of the editor's window, also where the file started is a stand-in that starts another.
constexpr wchar_t EditorClass[] = L"Notepad";

void LetEventsRun() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

template <typename Condition>
bool WaitFor(ULONGLONG milliseconds, Condition condition) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    while (!condition()) {
        if (GetTickCount64() >= end) return false;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        LetEventsRun();
    }
    return true;
}

// 0, or why the text is not on the clipboard.
DWORD PutOnClipboard(HWND owner, const std::wstring& text) {
    // Another program may be using it for a moment.
    if (!WaitFor(ClipboardPatience, [&] { return OpenClipboard(owner) != 0; })) return GetLastError();
    EmptyClipboard();
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    DWORD code = 0;
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory) std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    if (memory) GlobalUnlock(memory);
    if (!memory || !SetClipboardData(CF_UNICODETEXT, memory)) {
        code = GetLastError();
        GlobalFree(memory);
    }
    CloseClipboard();
    return code;
}

bool IsInFront(DWORD process) {
    const HWND front = GetForegroundWindow();
    DWORD owner = 0;
    GetWindowThreadProcessId(front, &owner);
    if (owner == process) return true;
    std::array<wchar_t, 32> name{};
    GetClassNameW(front, name.data(), static_cast<int>(name.size()));
    return owner != GetCurrentProcessId() && lstrcmpiW(name.data(), EditorClass) == 0;
}

void SendPasteKeys() {
    const auto stroke = [](WORD key, DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = flags;
        return input;
    };
    std::array keys{stroke(VK_MENU, 0),
                    stroke('E', 0),
                    stroke('E', KEYEVENTF_KEYUP),
                    stroke(VK_MENU, KEYEVENTF_KEYUP),
                    stroke('P', 0),
                    stroke('P', KEYEVENTF_KEYUP)};
    SendInput(static_cast<UINT>(keys.size()), keys.data(), sizeof(INPUT));
}

}  // namespace

void modPrinting::PasteIntoEditor(HWND owner, const std::wstring& editor, const std::wstring& text, const Texts& texts,
                                  const MessageBoxes& messageBoxes) {
    std::wstring commandLine = L"\"" + editor + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(editor.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &started)) {
        const std::wstring reason = texts.Reason(GetLastError());
        return messageBoxes.Inform(owner, texts.Compose(TextId::EditorNotStarted, editor, reason));
    }
    CloseHandle(started.hThread);
    const UniqueFile process(started.hProcess);
    LetEventsRun();

    if (const DWORD code = PutOnClipboard(owner, text))
        return messageBoxes.Inform(owner, texts.Compose(TextId::ClipboardNotUsed, texts.Reason(code)));
    // Sent to another window the P would pause the clock, for example.
    if (!WaitFor(EditorPatience, [&] { return IsInFront(started.dwProcessId); }))
        return messageBoxes.Inform(owner, texts(TextId::ListOnClipboard));
    SendPasteKeys();
    LetEventsRun();
}
