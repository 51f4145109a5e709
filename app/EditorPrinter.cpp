#include "app/EditorPrinter.h"

#include "app/PrintedList.h"
#include "platform/Ansi.h"
#include "platform/Clipboard.h"
#include "platform/Files.h"
#include "platform/Process.h"
#include "platform/SystemError.h"
#include "platform/Today.h"
#include "resources/resource.h"
#include "settings/ShownName.h"

#include <algorithm>
#include <array>

namespace {

constexpr ULONGLONG EditorPatience = 5000, ClipboardPatience = 1000;  // milliseconds

constexpr UINT Interval = 20;  // of Continue, in milliseconds

constexpr wchar_t EditorClass[] = L"Notepad";

std::vector<HWND> EditorWindows() {
    std::vector<HWND> windows;
    for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, EditorClass, nullptr)) != nullptr;)
        windows.push_back(window);
    return windows;
}

bool SendPasteKeys() {
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
    return SendInput(static_cast<UINT>(keys.size()), keys.data(), sizeof(INPUT)) == keys.size();
}

}  // namespace

void EditorPrinter::Print(HWND owner) {
    if (step != Step::None || !game.Record()) return;
    if (editor.empty() || !FileExists(editor)) return messageBoxes.Inform(owner, texts(TextId::EditorMissing));
    game.TopUpMoveLists();
    earlier = EditorWindows();
    try {
        StartProgram(editor);
    } catch (const SystemError& error) {
        const std::wstring reason = texts.Reason(error.Code());
        return messageBoxes.Inform(owner, texts.Compose(TextId::EditorNotStarted, editor, reason));
    }
    text = ListsOfGame();
    step = Step::Clipboard;
    deadline = GetTickCount64() + ClipboardPatience;
    SetTimer(owner, PrintTimer, Interval, nullptr);
}

std::wstring EditorPrinter::ListsOfGame() const {
    std::array<std::vector<std::wstring>, 2> columns;
    std::array<std::wstring, 2> names;
    for (Side side : BothSides) {
        const MoveList& list = game.Record()->List(side);
        for (size_t i = 0; i < list.Entries().size(); ++i) columns[side].push_back(FromAnsi(list.Line(i, side)));
        names[side] = ShownName(game.Options(), texts, side);
    }
    const PrintedLabels labels{{texts(TextId::PrintedWhite), texts(TextId::PrintedBlack)}, texts(TextId::Date)};
    return PrintedList(labels, names, Today(), columns);
}

void EditorPrinter::Continue(HWND owner) {
    const bool late = GetTickCount64() >= deadline;
    if (step == Step::Clipboard) {
        const DWORD code = PutOnClipboard(owner, text);
        if (code == 0) {
            step = Step::Front;
            deadline = GetTickCount64() + EditorPatience;
        } else if (code != ERROR_BUSY || late) {
            End(owner, texts.Compose(TextId::ClipboardNotUsed, texts.Reason(code)));
        }
    } else if (step == Step::Front) {
        // Sent to another window the P would pause the clock, for example.
        if (IsInFront())
            End(owner, SendPasteKeys() ? L"" : texts(TextId::ListOnClipboard));
        else if (late)
            End(owner, texts(TextId::ListOnClipboard));
    }
}

// Whether a window that the start has opened is in front and one of its controls takes keys. It is known by its class:
// on newer systems the file that is started hands over to another process.
bool EditorPrinter::IsInFront() const {
    const HWND front = GetForegroundWindow();
    std::array<wchar_t, 32> name{};
    GetClassNameW(front, name.data(), static_cast<int>(name.size()));
    if (lstrcmpiW(name.data(), EditorClass) != 0) return false;
    if (std::find(earlier.begin(), earlier.end(), front) != earlier.end()) return false;
    GUITHREADINFO thread{};
    thread.cbSize = sizeof(thread);
    return GetGUIThreadInfo(GetWindowThreadProcessId(front, nullptr), &thread) && thread.hwndFocus;
}

void EditorPrinter::End(HWND owner, const std::wstring& message) {
    step = Step::None;
    text.clear();
    KillTimer(owner, PrintTimer);
    if (!message.empty()) messageBoxes.Inform(owner, message);
}
