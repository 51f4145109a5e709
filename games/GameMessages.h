#pragma once

#include "games/GameFile.h"
#include "texts/Texts.h"

// What makes a file of a saved game unreadable, as a part of a message.
std::wstring ReasonOf(const GameFileError& error, const Texts& texts);
