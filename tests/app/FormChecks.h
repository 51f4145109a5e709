#pragma once

#include "base/Box.h"

#include <windows.h>

#include <string>
#include <vector>

// What every form is held to, in whatever state it is shown.

// Every visible control has a name for screen readers: its own text, a text given to them, or the label before it. And
// the order of the controls, which is that of reading and of the tab key, goes along with their places: none comes
// after one that is right of it in its row or below it in its column, and group boxes come before what they hold.
void ExpectReadable(HWND form);

// Every text of every control fits: static texts, buttons, all entries of drop-down lists, and, where the form draws
// its texts itself in the fonts of their controls, those too.
void ExpectTextsFit(HWND form, bool drawnTexts);

// A text fits the control that shows it in its font, with so much of the width taken by other things.
void ExpectFits(HWND control, const std::wstring& text, int taken, bool wraps = false);

// A part of a window's client area as it is on the screen: the brightness of each pixel, 0 to 1, row after row.
struct GreyPicture {
    int Width, Height;
    std::vector<double> Pixels;
};
GreyPicture GreyOf(HWND form, const Box& part);

// Whether a person who sees no colours tells two pictures of one size apart: their means differ by 3 : 1, or there is
// a shape of at least 5 % of their height, no thinner than 1 %, that differs so.
bool DifferInGrey(const GreyPicture& one, const GreyPicture& other);

// At high contrast, with system colours that the program has nowhere else: every control that the form draws, and its
// ground and labels, are drawn in the system's colours, and all of it anew when they change. For the windows of this
// process: the system itself cannot be told so everywhere.
void ExpectSystemColours(HWND form);
