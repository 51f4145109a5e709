#pragma once

#include <windows.h>

// While an object lives, the thread's new controls, message boxes and dialogs are those of version 6 of the common
// controls, with the system's visual styles. The first object loads their library, in that version. The program does
// not ask for it as a whole, as its manifest could: the clock draws its own controls, and starts without it.
class CommonControls {
  public:
    CommonControls();
    ~CommonControls();
    CommonControls(const CommonControls&) = delete;
    CommonControls& operator=(const CommonControls&) = delete;

  private:
    ULONG_PTR cookie = 0;
};
