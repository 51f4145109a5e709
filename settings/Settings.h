#pragma once

#include "base/Side.h"
#include "base/TimeControl.h"
#include "settings/SoundTables.h"
#include "texts/TextIds.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

// The clock's configuration as every window reads it. Times are in seconds.
struct Settings {
    std::array<std::string, 2> PlayerNames;  // in the ANSI code page; if empty, the side's caption is shown
    std::array<std::wstring, 2> FullNames;   // in UTF-16, where the code page lacks letters; otherwise empty
    TimeControl Control;                     // its SecondPeriodEnabled follows from ClockType, see SetClockType
    bool TurnClock = false;
    bool ShowMoveNumber = false;
    int32_t ClockType = 0;
    bool OpenScorletAtStart = false;
    int32_t ButtonSoundIndex = 0;
    int32_t FlagSoundIndex = 0;
    const char* ButtonSoundName = ButtonSounds[0];
    const char* FlagSoundName = FlagSounds[0];
    bool WritePgn = false;
    bool BoardTurned = false;  // the Scorlet's board, with Black's side below; no part of a game
    int32_t LowTime = 0;       // seconds left from which on a face is marked, or 0; no part of a game
    int32_t LanguageIndex = English;

    // The DEFAULT preset, no names, English.
    Settings();

    bool operator==(const Settings&) const = default;

    // Takes the type and what follows from it: types 1 and 2 have a second period, 0 and 3 have none, and any other
    // number leaves that as it was.
    void SetClockType(int32_t type);

    // These take the position in the list and look up its resource name. They throw RunTimeError(Fault::OutOfRange)
    // outside the table.
    void SetButtonSound(int32_t index);
    void SetFlagSound(int32_t index);
};

// A fixed choice of everything except the names, the language, the PGN option, the low-time warning and the turned
// board.
struct Preset {
    int32_t ClockType;
    int32_t FirstPeriodMinutes;
    std::optional<int32_t> SecondPeriodMinutes;  // none: left as it is
    int32_t BonusSeconds;
    bool ShowMoveNumber;
    bool TurnClock;
    bool CountTimeDown;
    int32_t ButtonSound;
    int32_t FlagSound;
    bool OpenScorlet;
    int32_t MovesFirstPeriod;
};

inline constexpr Preset DefaultPreset{
    .ClockType = 1,
    .FirstPeriodMinutes = 20,
    .SecondPeriodMinutes = 20,
    .BonusSeconds = 0,
    .ShowMoveNumber = true,
    .TurnClock = false,
    .CountTimeDown = true,
    .ButtonSound = 1,
    .FlagSound = 1,
    .OpenScorlet = true,
    .MovesFirstPeriod = 40,
};

inline constexpr Preset BlitzPreset{
    .ClockType = 0,
    .FirstPeriodMinutes = 5,
    .SecondPeriodMinutes = std::nullopt,
    .BonusSeconds = 0,
    .ShowMoveNumber = false,
    .TurnClock = false,
    .CountTimeDown = true,
    .ButtonSound = 1,
    .FlagSound = 0,
    .OpenScorlet = false,
    .MovesFirstPeriod = 40,
};

void ApplyPreset(const Preset& preset, Settings& settings);
