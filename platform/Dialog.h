#pragma once

#include "base/Box.h"
#include "platform/Colours.h"
#include "platform/DialogFit.h"
#include "platform/Form.h"
#include "platform/Handles.h"
#include "platform/WindowScroll.h"

#include <commctrl.h>

#include <map>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

// A control of a dialog.
struct DialogItem {
    int Id;
    const wchar_t* Kind;
    DWORD Style;  // WS_VISIBLE is added
    Box Box;      // in the 96 dpi design
    std::optional<TextId> Text = std::nullopt;
    Look::TypeStyle Type = Look::Text;

    // That of a drop-down list while it is shut, whatever its box says, and of a field: a higher one would have its
    // text too far up.
    static constexpr int FieldHeight = 21;

    bool IsButton() const { return std::wstring_view(Kind) == WC_BUTTONW; }
    bool IsGroup() const { return IsButton() && (Style & BS_TYPEMASK) == BS_GROUPBOX; }
    // A flat group box only groups.
    bool IsCard() const { return IsGroup() && !(Style & BS_FLAT); }
};

// The colours of a dialog and of the cards on it, which its group boxes become unless they are flat.
struct DialogColours {
    uint32_t Ground, Card;
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
    Dialog(const Surroundings& around, DialogColours colours);

    // Creates the window over its owner, hidden. The order of the items is that of reading and of the tab key. `size`
    // is in pixels of the 96 dpi design. The items must outlive the dialog. Throws SystemError.
    void Create(HWND owner, const wchar_t* name, TextId caption, const wchar_t* icon, Extent size,
                std::span<const DialogItem> items);

    void Close();

    // The button that Enter presses while no other button has the focus; 0: none.
    virtual int DefaultButton() const { return 0; }

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    HBRUSH Background() const { return ground.get(); }

  private:
    void Place(HWND on);
    void Arrange();
    void BringFocusIntoSight();
    RECT PlaceOf(const DialogItem& item) const;
    void DrawGround(HDC dc) const;
    HBRUSH DrawOnGround(HDC dc, int id) const;
    int EnterButton() const;

    Brush ground, card;
    Colour cardColour;
    std::map<std::pair<int, bool>, UniqueFont> fonts;  // by height in the design, and whether it is bold
    std::span<const DialogItem> items;
    Extent design{};
    DialogFit fit{96, {}, false, false};
    WindowScroll scroll;
    HWND focus = nullptr;  // while the window is not active
    bool open = false;
};
