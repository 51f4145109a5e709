#pragma once

#include <windows.h>

// Draws the ground of a square of a chess board; with the system's colours the dark squares are hatched, as in print.
void DrawSquare(HDC dc, const RECT& area, bool light, bool ofLastMove = false);
