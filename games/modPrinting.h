#pragma once

#include "platform/MessageBoxes.h"

#include <windows.h>

#include <string>

// Prints by way of the system's text editor: the text is pasted there, and the players print it from there.
namespace modPrinting {

// Starts the editor and pastes the text into it through the clipboard and the keys Alt+E, P, sent once its window is in
// front. Messages of the program's windows are let through meanwhile, for five seconds at most. What goes wrong is told
// in a message over `owner`.
void PasteIntoEditor(HWND owner, const std::wstring& editor, const std::wstring& text, const Texts& texts,
                     const MessageBoxes& messageBoxes);

}  // namespace modPrinting
