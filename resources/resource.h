#pragma once

#include "base/Side.h"

// Numbers of the controls of every form. A pair of controls has consecutive numbers, side 0 first.

// The clock window.
enum ClockControl : int {
    cmdClock = 1000,
    cmdPause = 1002,
    lblFace = 1004,
    lblSide = 1006,
    lblMoveNumber = 1008,
    lblMoveCount = 1010,
    lblPeriod = 1012,
    lblPeriodTime = 1014,
    lblBonus = 1016,
    lblBonusTime = 1018,
    imgFlagUp = 1020,
    imgFlagDown = 1022,
    imgHand = 1024,
    lblBlink = 1026,
    shpTurn = 1028,  // three marks a side: those of side 1 follow those of side 0

    mnuStart = 1100,
    mnuLoad,
    mnuSave,
    mnuDelete,
    mnuExit,
    mnuReset,
    mnuPause,
    mnuSetup,
    mnuShowScorlet,
    mnuCloseScorlet,
    mnuPrint,
    mnuContents,
    mnuAbout,
};

inline constexpr int TurnMarksPerSide = 3;

constexpr int ControlOf(int pair, Side side) { return pair + side; }
constexpr int TurnMark(Side side, int mark) { return shpTurn + TurnMarksPerSide * side + mark; }
