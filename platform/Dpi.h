#pragma once

#include <windows.h>

// Dots per inch of the screen that a window is on; 96 is 100%.
int DpiOf(HWND window);

// A length of the 96 dpi design in pixels.
inline int Scaled(int length, int dpi) { return MulDiv(length, dpi, 96); }
