#pragma once

#include <windows.h>

#include <string>

// What a screen reader gets of a window, of this process or another, through Microsoft Active Accessibility.

std::wstring SpokenName(HWND control);

// Expects every visible control of a form to have a name, by its own text, a text given to screen readers, or the rule
// of the system that a field is named by the label before it.
void ExpectNamed(HWND form);

// Expects the order of a form's visible controls, which is that of reading and of the tab key, to go along with their
// places: none comes behind one that stands right of it in its row or below it in its column. Group boxes come before
// what they hold.
void ExpectReadingOrder(HWND form);
