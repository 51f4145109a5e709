#pragma once

#include "base/Box.h"
#include "platform/Look.h"

// How a dialog fits the room that a screen has for it.

struct DialogFit {
    int Dpi;        // that its controls and their type are laid out for
    Extent Client;  // with the scroll bars, and no larger than the room
    bool ScrollsAcross, ScrollsDown;
};

// What the type of the dialogs must not become smaller than, in pixels of the 96 dpi design.
inline constexpr int LeastDialogType = 9;

// Dialogs that are too large are drawn smaller in steps of this, and at the least at this, in percent. Smaller ones
// could not be read.
inline constexpr int FitStep = 5, LeastFit = 80;
static_assert(Look::Heading.Height * LeastFit / 100 >= LeastDialogType);

// A length of the 96 dpi design, 0 or more, in pixels.
constexpr int AtDpi(int length, int dpi) { return (length * dpi + 48) / 96; }

// Fits a dialog of the 96 dpi design into the room for its client area on a screen of that resolution: at its full size
// if that fits, else at the largest step that fits, and else at the smallest with scroll bars as wide as `bar`.
DialogFit FitDialog(Extent design, int dpi, Extent room, int bar);
