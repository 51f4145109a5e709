#pragma once

#include <windows.h>

#include <string>

// Expects every text of every control of a window to fit: static texts, buttons, and all entries of drop-down lists.
// What a form draws itself is its own test's matter.
void ExpectTextsFit(HWND form);

// Width and height in pixels of a text in a control's font; wrapped into a width when one is given.
SIZE SizeOfText(HWND control, const std::wstring& text, int wrappedWidth = 0);

// Sends a window what the system does when it comes to a screen of another resolution.
void ScaleTo(HWND window, int dpi);
