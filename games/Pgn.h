#pragma once

#include "games/GameFile.h"
#include "games/GameHead.h"
#include "recorder/Recorder.h"

// The game in Portable Game Notation, as other chess programs read it: the head, an empty line, and the recorder's own
// text of the game, ended by the result.

std::string EncodePgn(const GameHead& head, const Recorder& recorder);

// The text of the game with its result, from a file that EncodePgn made: it begins after the eighth line end, and the
// last line end is not part of it. Tags are not looked at.
std::optional<GameFileError> DecodePgn(std::string_view bytes, std::string& text);
