#include "app/HelpWindow.h"

#include "platform/Process.h"
#include "platform/SystemError.h"
#include "resources/resource.h"

namespace {

constexpr UINT WatchInterval = 2000, Patience = 200;  // with the viewer, in milliseconds

// The folders of the languages in the help file.
const wchar_t* FolderOf(int32_t language) {
    switch (language) {
        case Turkish: return L"tr";
        case French: return L"fr";
        default: return L"en";
    }
}

const wchar_t* NameOf(HelpPage page) {
    switch (page) {
        case HelpPage::Scorlet: return L"scorlet.htm";
        case HelpPage::Settings: return L"settings.htm";
        case HelpPage::SavedGames: return L"saving.htm";
        case HelpPage::Contents: break;
    }
    return L"index.htm";
}

}  // namespace

// As the viewer takes it: the file, two colons and the page's path in it.
std::wstring HelpWindow::AddressOf(HelpPage page) const {
    // The row begins with a backslash, the folder ends with one.
    const std::wstring name = texts(page == HelpPage::Contents ? TextId::HelpContents : TextId::HelpPages);
    const std::wstring file = environment.ProgramFolder + (name.empty() ? name : name.substr(1));
    return file + L"::/" + FolderOf(texts.LanguageIndex()) + L"/" + NameOf(page);
}

void HelpWindow::Open(HWND owner, HelpPage page) {
    Watch();
    const std::wstring address = AddressOf(page);
    // The viewer cannot be told to turn to a page: it is started anew.
    if (held && page != HelpPage::Contents) {
        Close();
        process.reset();
    }
    if (held) {
        if (IsIconic(held)) ShowWindowAsync(held, SW_RESTORE);
        SetForegroundWindow(held);
        return;
    }
    // A viewer that has been started and shows no window yet will. A held F1 must not start one after the other.
    const bool wanted = page == HelpPage::Contents || page == started;
    if (wanted && Waits()) return;
    const std::wstring& viewer = environment.HelpViewerPath;
    if (viewer.empty()) return messageBoxes.Inform(owner, texts(TextId::HelpViewerMissing));
    const std::wstring file = address.substr(0, address.rfind(L"::"));
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || attributes & FILE_ATTRIBUTE_DIRECTORY)
        return messageBoxes.Inform(owner, texts.Compose(TextId::HelpFileMissing, file));

    try {
        started = page;
        process = StartProgram(viewer, L"\"" + viewer + L"\" \"" + address + L"\"");
        SetTimer(clock.Window(), HelpTimer, WatchInterval, nullptr);
    } catch (const SystemError& error) {
        const std::wstring reason = texts.Reason(error.Code());
        messageBoxes.Inform(owner, texts.Compose(TextId::HelpNotStarted, viewer, reason));
    }
}

void HelpWindow::OnTimer() {
    Watch();
    if (!Waits()) KillTimer(clock.Window(), HelpTimer);
}

void HelpWindow::Watch() {
    if (held && !IsWindow(held)) held = nullptr;
    if (held || !process) return;
    const DWORD viewerId = GetProcessId(process.get());
    for (HWND window = GetWindow(clock.Window(), GW_HWNDFIRST); window; window = GetWindow(window, GW_HWNDNEXT)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == viewerId && IsWindowVisible(window)) {
            held = window;
            return;
        }
    }
}

bool HelpWindow::Waits() const { return process && !held && WaitForSingleObject(process.get(), 0) == WAIT_TIMEOUT; }

void HelpWindow::Close() {
    Watch();
    // A viewer that hangs must not hold up the clock.
    if (held) SendMessageTimeoutA(held, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, Patience, nullptr);
    held = nullptr;
}
