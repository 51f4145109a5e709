#pragma once

#include "settings/Settings.h"
#include "texts/Texts.h"

// The name that the program shows for a side: the player's, or the word for the side where no name is set.
std::wstring ShownName(const Settings& settings, const Texts& texts, Side side);
