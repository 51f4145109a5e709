#pragma once

#include <windows.h>

// The scroll bars of a window whose content is larger than its client area, and the place that they have scrolled to.
// The content is the window's child windows and what it draws below them.
class WindowScroll {
  public:
    // What is seen of the content, in pixels; the step is that of an arrow of a scroll bar. The bars are there where
    // the content is larger.
    void Set(HWND window, SIZE content, SIZE seen, int step);

    // Where the content's top left is in the client area: 0 or less.
    POINT Origin() const { return {-place.x, -place.y}; }

    // WM_VSCROLL and WM_HSCROLL of the window's own bars.
    void OnScroll(UINT message, int request);
    // Scrolls down, or across if that is all there is to scroll or Shift is held. False: there is nothing to scroll.
    bool OnWheel(short delta);
    // Scrolls as little as shows an area of the client area.
    void BringIntoSight(const RECT& area);

  private:
    void ScrollTo(POINT wanted);
    SIZE Rest() const;  // what can be scrolled

    HWND window = nullptr;
    SIZE content{}, seen{};
    POINT place{};
    int step = 1, wheelRest = 0;
};
