#pragma once

#include "clock/ClockCommands.h"
#include "texts/Texts.h"

#include <windows.h>

#include <string>

// The title of the clock window, which the task bar shows, and the attention that its button draws there.
class ClockTitle {
  public:
    // They must outlive it.
    ClockTitle(const ClockCommands& commands, const Texts& texts)
        : commands(commands), texts(texts), title(texts(TextId::ProductTitle)) {}

    void Set(HWND window, const std::wstring& text);

    // While the window is minimised and the clock runs: the side that runs and its time, "White 12:31 - TORVANIX".
    void Show(HWND window) const;

    // Until the window comes to the front.
    static void Flash(HWND window);

  private:
    const ClockCommands& commands;
    const Texts& texts;
    std::wstring title;
};
