#pragma once

#include "clock/ClockCommands.h"
#include "games/Game.h"
#include "settings/Settings.h"
#include "texts/Texts.h"

// What the players are told of an event that they are to be told of.
std::wstring NoticeOf(ClockEvent event, const Texts& texts);

// As the settings have it.
void PlaySoundOf(ClockSound sound, const Settings& settings);
