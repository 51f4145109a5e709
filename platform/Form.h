#pragma once

#include "platform/Surroundings.h"

#include <windows.h>

#include <cstdint>
#include <exception>
#include <map>
#include <string>

// What the taskbar leaves of the screen that a window is on.
RECT WorkArea(HWND window);

// Base of every window of the program: one window class per form, its messages as one virtual function, and the one
// place where an exception of a handler ends.
class Form {
  public:
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    HWND Window() const { return window; }

    // Shows what stopped a handler, or the opening of the window, in a message.
    void ShowError(const std::exception& error) const;

    // A child window that screen readers know by its SpokenName. Throws SystemError.
    HWND AddControl(const wchar_t* kind, int id, DWORD style);

    // Null for none. The form's own record: the system would go through all controls of the window.
    HWND Control(int id) const;
    std::wstring Text(int id) const;
    void SetText(int id, const std::wstring& text) const;
    void SetVisible(int id, bool visible) const;
    void SetEnabled(int id, bool enabled) const { EnableWindow(Control(id), enabled); }

    // SpokenName of a control of a form; empty where there is none any more.
    static std::wstring SpokenNameOf(HWND control);

  protected:
    explicit Form(const Surroundings& around)
        : around(around),
          texts(around.Wording),
          messageBoxes(around.Boxes),
          language(texts.LanguageIndex()),
          captions(language) {}

    // What screen readers say of a control. Empty: what the system says, which is the control's text, or for fields
    // that of the label before it.
    virtual std::wstring SpokenName(int) const { return {}; }
    // Has them say it again; they do for the control that has the focus only.
    void TellSpokenName(int id) const {
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, Control(id), OBJID_CLIENT, CHILDID_SELF);
    }

    // Creates the window, hidden and without size. `name` names its class and must be the form's own.
    // Throws SystemError.
    void Create(const wchar_t* name, const std::wstring& caption, DWORD style, HICON icon, HWND owner = nullptr);

    // Dots per inch of the screen that the window is on. It changes with the screen, and the window then takes the size
    // that the system proposes.
    int Dpi() const { return dpi; }

    // A message of the window; what a form does not handle it passes on to Form::Handle.
    virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

    const Surroundings around;
    const Texts& texts;  // for messages
    const MessageBoxes& messageBoxes;

    // What stands on a window stays in the language that it was made in, also when another one is chosen later.
    const int32_t language;
    const Texts captions;

  private:
    static Form* FormOf(HWND window) { return reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA)); }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window = nullptr;
    std::map<int, HWND> controls;
    int dpi = 96;
};
