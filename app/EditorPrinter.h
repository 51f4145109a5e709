#pragma once

#include "platform/Handles.h"
#include "platform/MessageBoxes.h"

#include <windows.h>

#include <string>
#include <vector>

// Prints by way of the system's text editor: the text is pasted there, and the players print it from there. It goes in
// steps, between which the program's windows live on.
class EditorPrinter {
  public:
    // How often Continue is wanted while IsBusy, in milliseconds.
    static constexpr UINT Interval = 20;

    EditorPrinter(const Texts& texts, const MessageBoxes& messageBoxes) : texts(texts), messageBoxes(messageBoxes) {}

    bool IsBusy() const { return step != Step::None; }

    // Starts the editor. What goes wrong, now or later, is told in a message over `owner`.
    void Start(HWND owner, const std::wstring& editor, const std::wstring& text);

    // Puts the text on the clipboard, waits until a window of the editor is in front and takes keys, and sends it the
    // keys Alt+E, P. Without such a window in five seconds it tells that the text is on the clipboard.
    void Continue(HWND owner);

  private:
    enum class Step { None, Clipboard, Front };

    bool IsInFront() const;
    void End(HWND owner, const std::wstring& message);

    const Texts& texts;
    const MessageBoxes& messageBoxes;
    Step step = Step::None;
    ULONGLONG deadline = 0;  // of the step, by the system's tick count
    std::wstring text;
    std::vector<HWND> earlier;  // the editor's windows that were open before
};
