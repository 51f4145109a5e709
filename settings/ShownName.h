#pragma once

#include "settings/Settings.h"
#include "texts/Texts.h"

// The name that the program shows for a side: the player's, or the word for the side where no name is set.
std::wstring ShownName(const Settings& settings, const Texts& texts, Side side);

// The player's name in the ANSI code page. Empty where none is set, or where it is the word for the side in any of the
// program's languages: saving writes that for a player without a name.
std::string KnownName(const Settings& settings, const Texts& texts, Side side);
