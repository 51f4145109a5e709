#pragma once

#include "platform/Form.h"
#include "platform/Handles.h"
#include "platform/Surroundings.h"

#include <windows.h>

#include <string>

// Pages of the help file.
enum class HelpPage { Contents, Scorlet, Settings, SavedGames };

// The help file in the system's help viewer: opened, followed and closed with the program.
class HelpWindow {
  public:
    // Both must outlive the object.
    HelpWindow(const Surroundings& around, const Form& clock)
        : texts(around.Wording), messageBoxes(around.Boxes), environment(around.System), clock(clock) {}

    // Opens a page in the language of the program. The contents bring a viewer that is open to the front instead. A
    // missing viewer or file is told in a message.
    void Open(HWND owner, HelpPage page);

    // For HelpTimer of the clock's window, which runs until the viewer that has been started shows its window.
    void OnTimer();

    // Asks the viewer's window to close.
    void Close();

  private:
    // Looks in the z-order for the viewer's window and holds it.
    void Watch();
    // A viewer has been started and shows no window yet.
    bool Waits() const;
    std::wstring AddressOf(HelpPage page) const;

    const Texts& texts;
    const MessageBoxes& messageBoxes;
    const Environment& environment;
    const Form& clock;
    UniqueFile process;                     // of the viewer last started
    HelpPage started = HelpPage::Contents;  // the page it was started with
    HWND held = nullptr;
};
