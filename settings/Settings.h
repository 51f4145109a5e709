#pragma once

#include "base/Side.h"
#include "settings/SoundTables.h"
#include "texts/TextIds.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

// The clock's configuration as every window reads it. Times are seconds, per side.
struct Settings {
    std::array<std::string, 2> PlayerNames;  // in the ANSI code page; empty: the side's own caption is shown
    std::array<int32_t, 2> PeriodLimit{};
    std::array<int32_t, 2> SecondPeriodTime{};
    std::array<int32_t, 2> MoveBonus{};
    bool CountTimeDown = false;
    bool TurnClock = false;
    bool ShowMoveNumber = false;
    int32_t ClockType = 0;
    bool SecondPeriodEnabled = false;  // follows from ClockType, see SetClockType
    bool OpenScorletAtStart = false;
    int32_t MovesFirstPeriod = 1;  // at least 1
    int32_t ButtonSoundIndex = 0;
    int32_t FlagSoundIndex = 0;
    const char* ButtonSoundName = ButtonSounds[0];
    const char* FlagSoundName = FlagSounds[0];
    bool WritePgn = false;
    int32_t LanguageIndex = English;

    // The DEFAULT preset, no names, English.
    Settings();

    // Takes the type and what follows of it: types 1 and 2 have a second period, 0 and 3 have none, any other number
    // leaves that as it was.
    void SetClockType(int32_t type);

    // Take the list position and look its resource name up. Throw RunTimeError(Fault::OutOfRange) outside the table.
    void SetButtonSound(int32_t index);
    void SetFlagSound(int32_t index);
};

// A fixed choice for everything but the names, the language and the PGN option.
struct Preset {
    int32_t clockType;
    int32_t firstPeriodMinutes;
    std::optional<int32_t> secondPeriodMinutes;  // none: left as it is
    int32_t bonusSeconds;
    bool showMoveNumber;
    bool turnClock;
    bool countTimeDown;
    int32_t buttonSound;
    int32_t flagSound;
    bool openScorlet;
    int32_t movesFirstPeriod;
};

inline constexpr Preset DefaultPreset{
    .clockType = 1,
    .firstPeriodMinutes = 20,
    .secondPeriodMinutes = 20,
    .bonusSeconds = 0,
    .showMoveNumber = true,
    .turnClock = false,
    .countTimeDown = true,
    .buttonSound = 1,
    .flagSound = 1,
    .openScorlet = true,
    .movesFirstPeriod = 40,
};

inline constexpr Preset BlitzPreset{
    .clockType = 0,
    .firstPeriodMinutes = 5,
    .secondPeriodMinutes = std::nullopt,
    .bonusSeconds = 0,
    .showMoveNumber = false,
    .turnClock = false,
    .countTimeDown = true,
    .buttonSound = 1,
    .flagSound = 0,
    .openScorlet = false,
    .movesFirstPeriod = 40,
};

void ApplyPreset(const Preset& preset, Settings& settings);
