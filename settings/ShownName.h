#pragma once

#include "settings/Settings.h"
#include "texts/Texts.h"

// The player's name with all its letters; empty where none is set.
std::wstring NameOf(const Settings& settings, Side side);

// Takes a name in both of its forms: PlayerNames has the nearest letters where the code page lacks some.
void SetName(Settings& settings, Side side, const std::wstring& name);

// The name that the program shows for a side: the player's, or the word for the side where no name is set.
std::wstring ShownName(const Settings& settings, const Texts& texts, Side side);

// The player's name. Empty where none is set, or where it is the word for the side in any of the program's languages:
// saving writes that for a player without a name.
std::wstring KnownName(const Settings& settings, const Texts& texts, Side side);
