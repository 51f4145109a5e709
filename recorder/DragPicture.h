#pragma once

#include "platform/Handles.h"
#include "platform/Picture.h"

#include <windows.h>

// A picture that follows the mouse pointer over everything on the screen. It is a window of its own, which the system
// puts together with what lies below it, so that nothing has to be drawn anew when it moves.
class DragPicture {
  public:
    DragPicture() = default;
    ~DragPicture() { Hide(); }
    DragPicture(const DragPicture&) = delete;
    DragPicture& operator=(const DragPicture&) = delete;

    // Shows a picture of that size, in pixels, with its middle at a point of the screen. Throws SystemError.
    void Show(HWND owner, const Picture& picture, int size, POINT middle);
    void MoveTo(POINT middle) const;
    void Hide();

  private:
    HWND window = nullptr;
    int size = 0;
};
