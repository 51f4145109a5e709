#pragma once

#include "base/Side.h"

// Numbers of the controls of every form. A pair of controls has consecutive numbers, side 0 first.

// Buttons that several forms have.
enum SharedControl : int {
    cmdCancel = 2,  // the number that the system gives Esc
    cmdOK = 900,
    cmdHelp,
};

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
    shpTurn = 1028,  // three marks for each side: those of side 0, then those of side 1
    lblStage = 1034,

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
    mnuBringBack,
    mnuCopyGame,
    mnuCopyPosition,
    mnuExportPgn,
    mnuTakeBack,
    mnuRedo,
    mnuGoOn,
    mnuTurnBoard,
    mnuFullScreen,
    mnuCorrect,
    // These have no menu entry.
    mnuNextWindow,
    mnuSetupByKey,
    mnuScorletHelp,
};

// The Scorlet.
enum ScorletControl : int {
    picBoard = 2000,  // the cells follow, each at this number + its square: 2011 for a1 to 2088 for h8
    lblCaptured = 2100,
    imgCapturedWQ = 2101,  // the slots of a tray are consecutive; the trays of Black's pieces come last
    imgCapturedWR = 2102,
    imgCapturedWB = 2104,
    imgCapturedWN = 2106,
    imgCapturedWP = 2108,
    imgCapturedBQ = 2116,
    imgCapturedBR = 2117,
    imgCapturedBB = 2119,
    imgCapturedBN = 2121,
    imgCapturedBP = 2123,
    lblPromotion = 2140,
    imgPromotionQ,
    imgPromotionR,
    imgPromotionB,
    imgPromotionN,
    lblSay = 2150,
    cmbSay,
    lstMoves = 2152,  // White's list, then Black's
    txtMove = 2154,
    txtTypedMove,
    lblTypedMove,
    lblWhoseMove,
    lblPlayer = 2158,  // the headings of the lists

    mnuEditMove = 2160,
    mnuPrintMoveList,
    mnuDeleteLastMove,
};

// The setup dialog.
enum SetupControl : int {
    txtName = 2200,
    lblName = 2202,
    hsbFirstPeriod = 2204,
    hsbSecondPeriod = 2206,
    hsbBonus = 2208,
    lblFirstPeriod = 2210,  // the values beside the scroll bars
    lblSecondPeriod = 2212,
    lblBonusValue = 2214,
    fraClockType = 2220,
    lblClockType,
    cmbClockType,
    fraPlayers,
    lblFirstCaption,
    lblFirstUnit,
    lblSecondCaption,
    lblSecondUnit,
    lblBonusCaption,
    lblBonusUnit,
    frameLanguage,
    cmbLanguage,
    fraScorlet,
    chkOpenScorlet,
    chkPGN,
    lblMoveAmount,
    cmbMoveAmount,
    fraSound,
    lblButtonSound,
    cmbButtonSound,
    cmdPreviewButton,
    lblFlagSound,
    cmbFlagSound,
    cmdPreviewFlag,
    fraMiscellaneous,
    chkShowMoveNumber,
    chkTurnClock,
    chkCountTimeDown,
    lblLowTime,
    cmbLowTime,
    cmdDefault,
    cmdBlitz,
    fraTimes,
    cmbTimes,
    cmdKeepAs,
    cmdRemoveTimes,
};

// The dialog that asks for the name of a time control.
enum KeepAsControl : int {
    fraTimesName = 2350,
    lblTimesName,
    txtTimesName,
};

// The correction of the clock.
enum CorrectionControl : int {
    txtCorrectTime = 2500,
    txtCorrectMove = 2502,
    lblCorrectionOf = 2504,  // the names of the players
    lblCorrectTime = 2506,
    lblCorrectMove,
};

// The about box.
enum AboutControl : int {
    imgKnight = 2300,  // four of them
    lblAboutCaption = 2304,
    lblAboutValue = 2308,
};

// The file dialog.
enum FilesControl : int {
    fraGames = 2400,
    lblHint,
    lblGameName,
    txtGameName,
    lblGames,
    lstGames,
    fraActions,
    cmdLoad,
    cmdSave,
    cmdDelete,
    optByName,
    optByDate,
    fraSummary,
    lblSummaryNote,
    picPosition,
    lblSummary,  // a line of the summary, and those that follow
};
inline constexpr int SummaryLines = 6;

// Messages that the windows send themselves and one another, from WM_APP on.
enum ClockMessage : unsigned {
    WM_BUTTONKEY = 0x8001,  // a button was pressed with the key in wParam, 0 for the mouse; its number is in lParam
    WM_TELLPROBLEMS,        // something went wrong that can be told now
    WM_SCORLETGONE,         // the Scorlet's window has been destroyed
    WM_OPENED,              // the window is open: what went wrong can be told, a game that was kept be offered
    WM_KEEPGAME,            // the game has changed and is to be kept, when all is drawn
    WM_KEEPFAILED,          // it could not be, for the reason with the code in wParam
    WM_TELLSLEEP,           // the computer is awake again: a clock was paused
    WM_SCREENCHANGED,       // the screen or its task bar has changed
    WM_PLAYERKEY,           // the key of the left clock was pressed, or with 1 in wParam that of the right one
};
enum ScorletMessage : unsigned {
    WM_BOARDKEY = 0x8001,  // a key in wParam for the board
    WM_ENDEDIT,            // the edit of a move ends: with 1 in wParam it is accepted
    WM_BOARDCHARACTER,     // a character in wParam for the board
    WM_LISTKEY,            // a key in wParam that goes from one list to the other, or ends a look back
    WM_ENDTYPING,          // the typing of a move ends: with 1 in wParam it is to be entered
};

// The timers of the clock window.
enum ClockTimer : unsigned { BlinkTimer = 1, HelpTimer, PrintTimer };

// How many captured pieces of a side can be shown.
inline constexpr int CapturedSlots = imgCapturedBQ - imgCapturedWQ;

inline constexpr int TurnMarksPerSide = 3;

constexpr int ControlOf(int pair, Side side) { return pair + side; }
constexpr int TurnMark(Side side, int mark) { return shpTurn + TurnMarksPerSide * side + mark; }
