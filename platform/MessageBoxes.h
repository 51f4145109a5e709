#pragma once

#include "texts/Texts.h"

#include <windows.h>

// The system's message boxes with the program's own texts on their buttons. While one is open, every window of the
// program is disabled; running clocks go on.
class MessageBoxes {
  public:
    explicit MessageBoxes(const Texts& texts) : texts(texts) {}

    // The title is the program's unless another is given.
    void Inform(HWND owner, const std::wstring& text, TextId title = TextId::ProductTitle) const;

    // True for Yes.
    bool Ask(HWND owner, const std::wstring& text, bool yesIsDefault = true, TextId title = TextId::ProductTitle) const;

  private:
    int Show(HWND owner, const std::wstring& text, TextId title, UINT style) const;

    const Texts& texts;
};
