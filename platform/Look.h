#pragma once

#include <cstdint>

// The palette that all windows share, as 0xRRGGBB, and the type scale of the dialogs. Text keeps a contrast of at
// least 4.5 : 1 with its ground, and 3 : 1 on a face that is dimmed on purpose.
namespace Look {

inline constexpr uint32_t Card = 0xFAF9F6, Line = 0xCFCBC2;
inline constexpr uint32_t Ink = 0x1C1B19, QuietInk = 0x6A665E;

// What lies on the ground of the Scorlet, and its board. The last two are the squares of the last move.
inline constexpr uint32_t Tray = 0xEDEBE6, Sheet = 0xFFFFFF, Chosen = 0xF2D65C;
inline constexpr uint32_t LightSquare = 0xEFE6D2, DarkSquare = 0xB99B72, LightLast = Chosen, DarkLast = 0xDDBC45;
inline constexpr uint32_t LastMark = 0x6B4E1E, Picked = 0x1B7F3B;
// The lines that say which move is expected, that this is a warning, and that an earlier position is shown.
inline constexpr uint32_t Expected = 0xE8F3EA, Warning = 0xFFDF80, WarningInk = 0x402000;
inline constexpr uint32_t LookBack = 0xDCE8F7, LookBackInk = 0x12355F;

// The marks of the states of a clock, each with the ink for a word on it. That of the pause is dark, so that it differs
// from the other marks without any colour.
inline constexpr uint32_t Running = 0x1B7F3B, RunningInk = 0xFFFFFF;
inline constexpr uint32_t Paused = 0xE0A11B, PausedMark = 0x2A1E00;
inline constexpr uint32_t Fallen = 0xB3261E, FallenInk = 0xFFFFFF;

// The line around a face that is marked: a second period that begins, and time that is low.
inline constexpr uint32_t PeriodLine = Running, LowTimeLine = Paused;

// Keys, their lower edges and what is written on them.
inline constexpr uint32_t Key = 0xE3AE3C, KeyEdge = 0xA87414, KeyInk = 0x2A1E00;
inline constexpr uint32_t PlainKey = 0xFFFFFF, PlainKeyEdge = Line;
inline constexpr uint32_t DeadKey = 0xDAD7D0, DeadKeyEdge = 0xC4C0B7, DeadKeyInk = 0x5C5851;

struct FaceShades {
    uint32_t Ground, Ink;
};
// White's face and Black's.
inline constexpr FaceShades FullFaces[] = {{0xFFFFFF, 0x141312}, {0x141312, 0xFFFFFF}};
inline constexpr FaceShades DimmedFaces[] = {{0xBDBAB3, 0x625F59}, {0x3A3937, 0x888580}};
inline constexpr FaceShades PausedFaces[] = {{0xBDBAB3, 0x141312}, {0x4B4A47, 0xFFFFFF}};
inline constexpr FaceShades FallenFaces[] = {{Fallen, 0xFFFFFF}, {0xFFFFFF, Fallen}};

// The type of the dialogs: its height in pixels of the 96 dpi design.
struct TypeStyle {
    int Height;
    bool Bold;
    uint32_t Ink;
};
inline constexpr TypeStyle Text{13, false, Ink}, QuietText{13, false, QuietInk};
inline constexpr TypeStyle Heading{12, true, QuietInk}, Value{15, true, Ink};

// The edge of a card in a dialog, and the radius of its corners, in the same pixels.
inline constexpr uint32_t CardEdge = 0xA19D95;
inline constexpr int CardCorner = 6;

}  // namespace Look
