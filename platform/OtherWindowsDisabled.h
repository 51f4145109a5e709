#pragma once

#include <windows.h>

#include <vector>

// Disables the program's windows but one for its own life: the system itself disables only the owner of a message box.
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
