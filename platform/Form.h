#pragma once

#include "platform/Surroundings.h"

#include <windows.h>

#include <cstdint>
#include <exception>
#include <map>
#include <string>

// The part of a window's screen that the taskbar leaves free.
RECT WorkArea(HWND window);

// Whether a control is of that window class; null is of none.
bool IsOfKind(HWND control, const wchar_t* kind);

// Gives a drop-down list that height, in pixels, while it is shut.
void SetShutHeight(HWND list, int height);

// Base of every window of the program: one window class for each form, one virtual function for its messages, and the
// one place where the exceptions of handlers end.
class Form {
  public:
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    HWND Window() const { return window; }

    // Shows a message that says what stopped a handler, or the opening of the window.
    void ShowError(const std::exception& error) const;

    // A child window that screen readers know by its SpokenName. Throws SystemError.
    HWND AddControl(const wchar_t* kind, int id, DWORD style);

    // Null if there is no such control. The form keeps a record of its own, since the system would search all controls
    // of the window.
    HWND Control(int id) const;
    std::wstring Text(int id) const;
    void SetText(int id, const std::wstring& text) const;
    void SetVisible(int id, bool visible) const;
    void SetEnabled(int id, bool enabled) const { EnableWindow(Control(id), enabled); }

    // The SpokenName of a form's control, or with a part from 1 on the SpokenPart; empty if the form no longer exists.
    static std::wstring SpokenNameOf(HWND control, int part = 0);

  protected:
    explicit Form(const Surroundings& around)
        : around(around),
          texts(around.Wording),
          messageBoxes(around.Boxes),
          language(texts.LanguageIndex()),
          captions(language) {}

    // What screen readers say of a control. Empty leaves it to the system, which says the control's text, or for a
    // field the text of the label before it.
    virtual std::wstring SpokenName(int) const { return {}; }
    // The same for a part of a control, such as a row of a list, counted from 1. Asked for only where the control has a
    // SpokenName.
    virtual std::wstring SpokenPart(int, int) const { return {}; }
    // Has screen readers say it again, which they do only for the control that has the focus.
    void TellSpokenName(int id) const {
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, Control(id), OBJID_CLIENT, CHILDID_SELF);
    }

    // Whether its controls are the system's plain ones rather than those of CommonControls, which look no other where a
    // form draws them.
    virtual bool HasPlainControls() const { return false; }

    // Creates the window, hidden and without a size. `name` names its class and must be the form's own. Throws
    // SystemError.
    void Create(const wchar_t* name, const std::wstring& caption, DWORD style, HICON icon, HWND owner = nullptr);

    // Dots per inch of the screen that the window is on. It changes with the screen, and the window then takes the size
    // that the system proposes.
    int Dpi() const { return dpi; }

    // Handles a message of the window. A form passes what it does not handle itself on to Form::Handle.
    virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

    const Surroundings around;
    const Texts& texts;  // for messages
    const MessageBoxes& messageBoxes;

    // The captions of a window stay in the language in which it was made, even when another one is chosen later.
    const int32_t language;
    const Texts captions;

  private:
    static Form* FormOf(HWND window) { return reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA)); }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window = nullptr;
    std::map<int, HWND> controls;
    int dpi = 96;
};
