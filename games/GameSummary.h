#pragma once

#include "games/GameCodec.h"

#include <string>

// What is told of a saved game before it is loaded.

// How many moves the side that is ahead has made, by the clock or, where more are written, by the lists.
int32_t MovesMade(const SavedGame& game);

// "1-0", "0-1" or "1/2-1/2"; "*" for a game under way, and empty for one that has not begun. A flag that has fallen
// beside a closed Scorlet makes a result too.
std::string OutcomeOf(const SavedGame& game);
