#pragma once

#include "games/ClockRecord.h"
#include "games/GameHead.h"
#include "recorder/Recorder.h"

#include <functional>
#include <vector>

// A saved game as a whole: the bytes of its files, and back.

// The bytes of the files that saving writes. `scorlet` is null while it is not loaded: the clock's file is then the
// only one. The PGN is written where the settings want it. What is not written stays as it lies on the disk. The
// recorder's lists should have been topped up to the clock's counts. Names are those that the clock shows.
GameFiles EncodeGame(const Settings& settings, const modClock::ClockState& clock, const Recorder* scorlet,
                     const CalendarDate& today);

// A game that has been read and checked: both parts can take the places of those in use as they are.
struct SavedGame {
    Settings Options;  // with the language that was in use
    modClock::ClockState Clock;
    Recorder Scorlet;            // the initial position where none was saved
    bool ScorletLoaded = false;  // it was saved with the Scorlet
    bool PgnUnreadable = false;
    bool Mismatched = false;  // its files do not come from one save, which is no error: the game is read all the same
};

// Gives the first `limit` bytes of a file, nothing when there is none. It may throw; DecodeGame lets that through.
using GameFileReader = std::function<std::optional<std::vector<uint8_t>>(GameFile file, size_t limit)>;

// One for files in memory, which must outlive it.
GameFileReader ReaderOf(const GameFiles& files);

// Reads and checks a game, and asks for no file that does not belong to it: none but the clock's when the game was
// saved without the Scorlet, no PGN when it was saved without. A missing clock file counts as an empty one, the others
// may be missing. A PGN that cannot be read is no error: the running text then follows from the lists. `present` are
// the settings in use, see DecodeClockRecord.
std::optional<GameFileError> DecodeGame(const GameFileReader& read, const Settings& present, SavedGame& game);

// Why a game with these files could not be loaded: it is not worth saving.
std::optional<GameFileError> FaultOf(const GameFiles& files);
