#pragma once

#include "base/Box.h"
#include "base/Side.h"

#include <array>

// The places of everything in the clock window, in pixels of its client area.

// One player's panel: a card, in a frame while its state asks for one.
struct PanelLayout {
    Box Panel;
    int Frame;        // its width
    Box Flag, Name;   // the flag hangs small in its box and fills it when it has fallen
    Box Mark;         // of the state: a lozenge that holds a sign and a word
    Box Sign, Blink;  // in the mark
    Box Face;
    Box Key;                // what a player hits: the hand and the clock button together
    Box Hand, ClockButton;  // in the key
    Box PauseButton;
    Box MoveNumber, MoveCount;
    Box Period, PeriodTime;
    Box Bonus, BonusTime;
    Box Stage;          // the period and the moves that are left in it
    bool StageAtRight;  // its text ends at the right
    // The sign, and the frame above and below.
    std::array<Box, 3> TurnMarks() const {
        return {Sign, Box{Panel.Left, Panel.Top, Panel.Width, Frame},
                Box{Panel.Left, Panel.Bottom() - Frame, Panel.Width, Frame}};
    }
};

struct ClockLayout {
    std::array<PanelLayout, 2> Panels;
    // Heights of type, in pixels.
    int NameType, BlinkType, ButtonType, PauseType, TextType;
    // Radii of corners, in pixels.
    int CardCorner, FaceCorner, KeyCorner;
};

// The client size of the window at first, and the smallest at which it is readable, at 96 dpi.
inline constexpr int DesignWidth = 1120, DesignHeight = 480;
inline constexpr int LeastWidth = 300, LeastHeight = 372;

// Whether the panels of a client area of that size are one above the other, White's on top, rather than side by side.
// A column of LeastWidth is one from LeastHeight on.
constexpr bool IsColumn(int width, int height) { return width * 20 < height * 23; }

// Lays out a window of that client size. Everything grows with the window, and the faces take the room that is left.
ClockLayout LayOutClock(int width, int height);

// How the digits of a face are drawn, in parts of the height of a digit: a type that is wide enough fills `Width` of
// the face and `Height` of it at the most, and is made narrower down to `Narrowest` of its own width to be higher.
namespace FaceDigits {
inline constexpr double Width = 0.93, Height = 0.64, Narrowest = 0.6;
// A face so wide for its height is filled by digits of their own width and this part of its height.
inline constexpr double GreatestHeight = 0.84;
}  // namespace FaceDigits

// The height of the digits of a face, and the width to which their text is drawn, for a text whose own width is
// `widthPerHeight` of the height of its digits. In pixels.
struct DigitSize {
    double Height, Width;
};
DigitSize FitDigits(int faceWidth, int faceHeight, double widthPerHeight);
