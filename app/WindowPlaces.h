#pragma once

#include "base/Box.h"

// Where the clock window and the Scorlet are: whole windows with their frames, in pixels.

// The screen that the windows are on.
struct Screen {
    Box WorkArea;  // what the task bar leaves free
    int Dpi;
    Extent ClockFrame, ScorletFrame;  // what frame, title and menu add to a client area
};

struct WindowPlaces {
    Box Clock, Scorlet;
};

// The smallest size of a window whose client area has the least size of the design. A work area that is smaller still
// is filled.
Extent LeastClock(const Screen& screen);
Extent LeastScorlet(const Screen& screen);

// Moved, and cut where it is too large, to lie in an area.
Box BroughtInto(const Box& box, const Box& area);

// Whether neither covers the other, and each lies in the work area of its screen.
bool BothInSight(const WindowPlaces& places, const Box& clockArea, const Box& scorletArea);

// The clock alone: as it was designed, in the middle of the work area.
Box PlaceClock(const Screen& screen);

// The Scorlet, which is larger on a large screen, at the right of a clock that was there, which moves to the left as
// far as that asks for. Where the work area is too narrow for both, they fill its width: first the clock becomes
// narrower and then the Scorlet, down to their least widths. Where even these are too wide, the Scorlet covers the
// clock.
WindowPlaces PlaceBoth(const Screen& screen, const Box& clock);
