#pragma once

#include <windows.h>

// A window without frame and menu over its whole screen. The menu comes back while it is used: at the Alt key, or when
// the pointer touches the upper edge of the screen.
class FullScreen {
  public:
    bool On() const { return on; }
    void Begin(HWND window);
    void End(HWND window);
    // The window goes on filling its screen, whose size has changed.
    void Fill(HWND window) const;

    void ShowMenu(HWND window, bool shown) const;
    // The pointer is at that height of the window's client area, in pixels.
    void OnMouseMove(HWND window, int y) const;

  private:
    bool on = false;
    HMENU menu = nullptr;
    LONG_PTR style = 0;
    WINDOWPLACEMENT before{};
};
