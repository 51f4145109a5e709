#pragma once

#include "platform/Handles.h"
#include "platform/Surroundings.h"

#include <windows.h>

#include <string>

// Pages of the help file.
enum class HelpPage { Contents, Scorlet, Settings, SavedGames };

// The help file in the system's help viewer: opened, followed and closed with the program.
class HelpWindow {
  public:
    explicit HelpWindow(const Surroundings& around)
        : texts(around.Wording), messageBoxes(around.Boxes), environment(around.System) {}

    // Opens a page in the language of the program. The contents bring a viewer that is open to the front instead. A
    // missing viewer or file is told in a message.
    void Open(HWND owner, HelpPage page);

    // Looks from `first` downwards in the z-order for the viewer's window and holds it.
    void Watch(HWND first);

    // A viewer has been started and shows no window yet.
    bool Waits() const;

    // Asks the viewer's window to close. `first` as for Watch.
    void Close(HWND first);

  private:
    std::wstring AddressOf(HelpPage page) const;

    const Texts& texts;
    const MessageBoxes& messageBoxes;
    const Environment& environment;
    UniqueFile process;                     // of the viewer last started
    HelpPage started = HelpPage::Contents;  // the page it was started with
    HWND held = nullptr;
};
