#pragma once

#include "platform/Form.h"

// A window without frame and menu over its whole screen. The menu comes back while it is used: at the Alt key, or when
// the pointer touches the upper edge of the screen.
class FullScreen {
  public:
    // The window must outlive it.
    explicit FullScreen(const Form& form) : form(form) {}

    bool On() const { return on; }
    void Begin();
    // True: the screen has changed meanwhile, so that the window may not fit there any more.
    bool End();
    // The window goes on filling its screen.
    void OnScreenChanged();

    void ShowMenu(bool shown) const;
    // The pointer is at that height of the window's client area, in pixels.
    void OnMouseMove(int y) const;

  private:
    void Fill() const;

    const Form& form;
    bool on = false;
    bool screenChanged = false;
    HMENU menu = nullptr;
    LONG_PTR style = 0;
    WINDOWPLACEMENT before{};
};
