#include "platform/MessageBoxes.h"

#include "platform/CommonControls.h"
#include "platform/OtherWindowsDisabled.h"

namespace {

// Writes the program's texts on the buttons of the next message box that opens: the system would write them in its own
// language. A hook procedure is given no context, so a thread-local variable leads to the object at work.
class ButtonTexts {
  public:
    explicit ButtonTexts(const Texts& texts)
        : texts(texts), previous(current), hook(SetWindowsHookExW(WH_CBT, Procedure, nullptr, GetCurrentThreadId())) {
        current = this;
    }
    ~ButtonTexts() {
        if (hook) UnhookWindowsHookEx(hook);
        current = previous;
    }
    ButtonTexts(const ButtonTexts&) = delete;
    ButtonTexts& operator=(const ButtonTexts&) = delete;

  private:
    static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam) {
        const HWND window = reinterpret_cast<HWND>(wParam);
        // The box's owner, too, is activated during the life of the box.
        if (code == HCBT_ACTIVATE && current && IsMessageBox(window)) current->Write(window);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    // By the class that the system gives all its dialogs; the program's own have others.
    static bool IsMessageBox(HWND window) {
        wchar_t name[8]{};
        GetClassNameW(window, name, 8);
        return lstrcmpW(name, L"#32770") == 0;
    }

    void Write(HWND box) {
        const bool question = GetDlgItem(box, IDYES) != nullptr;
        WriteOne(box, IDYES, TextId::ButtonYes);
        WriteOne(box, IDNO, TextId::ButtonNo);
        WriteOne(box, IDOK, TextId::ButtonOk);
        // The lone OK button has the number of Cancel, so that Escape closes the box.
        if (!question) WriteOne(box, IDCANCEL, TextId::ButtonOk);
    }

    void WriteOne(HWND box, int button, TextId text) const {
        if (const HWND control = GetDlgItem(box, button)) SetWindowTextW(control, texts(text).c_str());
    }

    // A hook hands its procedure no context.
    static thread_local ButtonTexts* current;
    const Texts& texts;
    ButtonTexts* previous;
    HHOOK hook;
};

thread_local ButtonTexts* ButtonTexts::current = nullptr;

}  // namespace

int MessageBoxes::Show(HWND owner, const std::wstring& text, TextId title, UINT style) const {
    const CommonControls controls;
    const OtherWindowsDisabled others(owner);
    const ButtonTexts buttons(texts);
    return MessageBoxW(owner, text.c_str(), texts(title).c_str(), style);
}

void MessageBoxes::Inform(HWND owner, const std::wstring& text, TextId title) const {
    Show(owner, text, title, MB_OK | MB_ICONINFORMATION);
}

bool MessageBoxes::Ask(HWND owner, const std::wstring& text, bool yesIsDefault, TextId title) const {
    const UINT defaultButton = yesIsDefault ? MB_DEFBUTTON1 : MB_DEFBUTTON2;
    return Show(owner, text, title, MB_YESNO | MB_ICONQUESTION | defaultButton) == IDYES;
}
