#pragma once

#include <windows.h>

#include <array>

// High contrast for its own life, with system colours that the program has nowhere else. For the windows of this
// process: the system itself cannot be told so everywhere.
class HighContrastOn {
  public:
    HighContrastOn();
    ~HighContrastOn();
    HighContrastOn(const HighContrastOn&) = delete;
    HighContrastOn& operator=(const HighContrastOn&) = delete;

  private:
    std::array<COLORREF, 7> previous;
};

// Expects every control that a form draws, and its ground and labels, to be drawn in the system's colours.
void ExpectSystemColours(HWND form);
