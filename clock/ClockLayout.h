#pragma once

#include "base/Box.h"
#include "base/Side.h"

#include <array>

// The places of everything in the clock window, in pixels of its client area.

// One player's panel. The turn marks are an arrow before the name and a bar above and below the face.
struct PanelLayout {
    Box Panel;
    Box Name, Blink;
    Box Face;
    std::array<Box, 3> TurnMarks;
    Box Flag, Hand, ClockButton, PauseButton;
    Box MoveNumber, MoveCount;
    Box Period, PeriodTime;
    Box Bonus, BonusTime;
};

struct ClockLayout {
    std::array<PanelLayout, 2> Panels;
    // Heights of type, in pixels.
    int NameType, BlinkType, ButtonType, PauseType, TextType;
};

// The client size at which the design is drawn 1 : 1, and the smallest at which it is readable, at 96 dpi.
inline constexpr int DesignWidth = 1120, DesignHeight = 480;
inline constexpr int LeastWidth = 780, LeastHeight = 340;

// Lays out a window of that client size. Everything grows with the window, and the faces take the room that is left.
ClockLayout LayOutClock(int width, int height);
