#pragma once

#include "platform/Look.h"

#include <windows.h>

// A group of a dialog's controls is a card that the dialog draws, with the heading of a group box on it.

// The colour of what is written in a style, or the system's at high contrast.
COLORREF InkOf(const Look::TypeStyle& style);

// Draws a card of that colour with a thin edge; the radius of its corners is in pixels.
void DrawCard(HDC dc, const RECT& area, int corner, COLORREF colour);

// Has a group box, a control of the system, draw its heading only.
void DrawHeadingOnly(HWND groupBox);
