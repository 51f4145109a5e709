#pragma once

#include "recorder/Recorder.h"

#include <optional>
#include <string>
#include <string_view>

// Replays a game given as moves of origin and destination with a promotion letter ("e2e4 e7e8q") and a result token at
// the end, "*" for a game without one, all separated by blanks.
//
// Appends the written moves, separated by blanks and without numbers, and the result. Returns false if the line is
// malformed or a move begins on an empty square; `written` is then as it was.
bool ReplayLine(std::string_view line, std::string& written);

// Enters such a game through the recorder; no value if ReplayLine would return false.
std::optional<Recorder> RecordLine(std::string_view line);

// Appends the game for other programs, as far as it is understood from the lists and the last position, with nothing
// known besides. Returns what is not clear, "White's move 12, Nf3, cannot be understood", or an empty text.
std::string ExportRecord(const Recorder& recorder, std::string& exported);
