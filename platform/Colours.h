#pragma once

#include "platform/Handles.h"

#include <windows.h>

// Whether the user has asked the system for high contrast. This is the one place that decides it: the program then
// draws in the system's colours, otherwise in its own.
bool HighContrast();

constexpr COLORREF ColourOf(uint32_t redGreenBlue) {
    return RGB(redGreenBlue >> 16 & 0xFF, redGreenBlue >> 8 & 0xFF, redGreenBlue & 0xFF);
}

// A colour of the program, and the COLOR_ index of the system colour that replaces it at high contrast. It is looked up
// at each use, so that a change needs no more than a repaint, which Form sees to.
class Colour {
  public:
    constexpr Colour(COLORREF own, int system) : own(own), system(system) {}
    operator COLORREF() const { return HighContrast() ? GetSysColor(system) : own; }

  private:
    friend class Brush;
    COLORREF own;
    int system;
};

// A brush of such a colour.
class Brush {
  public:
    explicit Brush(const Colour& colour) : own(CreateSolidBrush(colour.own)), system(colour.system) {}
    HBRUSH get() const { return HighContrast() ? GetSysColorBrush(system) : own.get(); }

  private:
    UniqueBrush own;
    int system;
};
