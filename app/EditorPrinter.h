#pragma once

#include "games/Game.h"
#include "platform/Handles.h"
#include "platform/Surroundings.h"

#include <windows.h>

#include <string>
#include <vector>

// Prints the lists of the Scorlet by way of the system's text editor: the text is pasted there, and the players print
// it from there. It goes in steps, between which the program's windows live on.
class EditorPrinter {
  public:
    // The game must outlive the printer.
    EditorPrinter(const Surroundings& around, Game& game)
        : texts(around.Wording), messageBoxes(around.Boxes), editor(around.System.NotepadPath), game(game) {}

    // Starts the editor, while the Scorlet is open and no printing is under way; the timer PrintTimer of `owner` then
    // wants Continue. What goes wrong, now or later, is told in a message over `owner`.
    void Print(HWND owner);

    // Puts the text on the clipboard, waits until a window of the editor is in front and takes keys, and sends it the
    // keys Alt+E, P. Without such a window in five seconds it tells that the text is on the clipboard.
    void Continue(HWND owner);

  private:
    enum class Step { None, Clipboard, Front };

    std::wstring ListsOfGame() const;
    bool IsInFront() const;
    void End(HWND owner, const std::wstring& message);

    const Texts& texts;
    const MessageBoxes& messageBoxes;
    const std::wstring& editor;
    Game& game;
    Step step = Step::None;
    ULONGLONG deadline = 0;  // of the step, by the system's tick count
    std::wstring text;
    std::vector<HWND> earlier;  // the editor's windows that were open before
};
