#pragma once

#include "clock/modClock.h"
#include "games/GameFile.h"
#include "settings/Settings.h"

#include <span>

// How a saved game's clock lies in its record. Everything after the names moves with their lengths.

// Longer names are cut when they are written; the full ones are not.
inline constexpr int32_t MaxSavedName = 128;

// A clock as it stood, with what the players had set.
struct ClockRecord {
    Settings Options;            // all but the language, the turned board and low time; its time control is Clock's
    modClock::ClockState Clock;  // all but what the faces show and the timer
    Side SideToMove = White;     // the Scorlet's
    bool ScorletLoaded = false;  // the game has its other files
};

// The bytes of the record. The time control is taken from Clock. Throws RunTimeError(Fault::OutOfRange) when a full
// name is longer than MaxFullName.
std::string EncodeClockRecord(const ClockRecord& saved);

// Reads the record at the start of the bytes; what follows it is ignored. What the record does not hold, the
// language, the turned board and low time, is as in `present`, and so is the second period of an unknown clock type. A
// record without the last five fields is read as one of an earlier form: turn, progress and the armed second periods
// follow from the rest, and the other files are read where they exist.
std::optional<GameFileError> DecodeClockRecord(std::span<const uint8_t> bytes, const Settings& present,
                                               ClockRecord& saved);

// An older clock file that is longer than this, in bytes, is none of ours: its tail is not carried over.
inline constexpr size_t LongestKeptFile = 16 << 20;

// The bytes that a file gets whose older content may be longer: its tail is kept, deliberately.
std::string WithOldTail(std::string bytes, std::string_view older);
