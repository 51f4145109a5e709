#pragma once

#include "base/Box.h"
#include "base/Side.h"

#include <array>

// Where everything stands in the clock window, in pixels of its client area.

// One player's panel. The turn marks are an arrow before the name and a bar above and below the face.
struct PanelLayout {
    Box panel;
    Box side, blink;
    Box face;
    std::array<Box, 3> turnMarks;
    Box flag, hand, clockButton, pauseButton;
    Box moveNumber, moveCount;
    Box period, periodTime;
    Box bonus, bonusTime;
};

struct ClockLayout {
    std::array<PanelLayout, 2> panels;
    // Heights of type, in pixels.
    int nameType, blinkType, buttonType, pauseType, textType;
};

// The client size at which the design is drawn 1 : 1, and the least that leaves it readable, at 96 dpi.
inline constexpr int DesignWidth = 1120, DesignHeight = 480;
inline constexpr int LeastWidth = 780, LeastHeight = 340;

// Lays a window of that client size out. Everything grows with the window; what is left over goes to the faces.
ClockLayout LayOutClock(int width, int height);
