#pragma once

#include "base/Box.h"
#include "platform/Colours.h"
#include "platform/DialogFit.h"
#include "platform/Form.h"
#include "platform/Handles.h"
#include "platform/WindowScroll.h"

#include <optional>
#include <span>

// A control of a dialog.
struct DialogItem {
    int Id;
    const wchar_t* Kind;
    DWORD Style;  // WS_VISIBLE is added
    Box Box;      // in the 96 dpi design
    std::optional<TextId> Text = std::nullopt;
};

// Base of the forms that stay over the clock until they are closed. Enter presses the button that has the focus, or
// else the default button; Esc presses the one with the number IDCANCEL. A dialog that is too large for its screen is
// drawn smaller, and scrolls where that is not enough.
class Dialog : public Form {
  public:
    // Shows the window, which must have been created, with the other windows of the program disabled, until Close.
    // Running clocks go on.
    void RunModal();

  protected:
    explicit Dialog(const Surroundings& around);

    // Creates the window over its owner, hidden. The order of the items is that of reading and of the tab key. `width`
    // and `height` are in pixels of the 96 dpi design. The items must outlive the dialog. Throws SystemError.
    void Create(HWND owner, const wchar_t* name, TextId caption, const wchar_t* icon, int width, int height,
                std::span<const DialogItem> items);

    void Close();

    // The button that Enter presses while no other button has the focus; 0: none.
    virtual int DefaultButton() const { return 0; }

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    HBRUSH Background() const { return background.get(); }

  private:
    void Place(HWND on);
    void Arrange();
    void BringFocusIntoSight();
    int EnterButton() const;

    Brush background;
    UniqueFont font;
    std::span<const DialogItem> items;
    Extent design{};
    DialogFit fit{96, {}, false, false};
    WindowScroll scroll;
    HWND focus = nullptr;  // while the window is not active
    bool open = false;
};
