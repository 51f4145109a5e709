#pragma once

#include <windows.h>

// Has a clock or pause button act when the mouse button or the key goes down, rather than when it is let go. It sends
// WM_BUTTONKEY to its form, with the key in wParam, 0 for the mouse, and its own number in lParam; 'p' is the key that
// pauses.
void ActOnPress(HWND button);
