#pragma once

#include <windows.h>

#include <vector>

// Disables all windows of the program but one for as long as the object lives: the system itself disables only the
// owner of a message box.
class OtherWindowsDisabled {
  public:
    explicit OtherWindowsDisabled(HWND owner);
    ~OtherWindowsDisabled();
    OtherWindowsDisabled(const OtherWindowsDisabled&) = delete;
    OtherWindowsDisabled& operator=(const OtherWindowsDisabled&) = delete;

  private:
    static BOOL CALLBACK Disable(HWND window, LPARAM self);

    HWND owner;
    std::vector<HWND> disabled;
};
