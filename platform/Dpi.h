#pragma once

#include <windows.h>

// Dots per inch of the screen that a window is on; 96 is 100%.
int DpiOf(HWND window);

// A length of the 96 dpi design in pixels.
inline int Scaled(int length, int dpi) { return MulDiv(length, dpi, 96); }

// What a window of that style adds on each side of its client area, as the corners of a rectangle around a point. A
// menu is counted as one line.
RECT FrameOf(DWORD style, bool menu, int dpi);
