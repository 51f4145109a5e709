#pragma once

#include "recorder/ScorletGame.h"
#include "texts/Texts.h"

#include <windows.h>

// Shows the menu of a move list at a point of the screen, until it is closed; the owner is sent the command that is
// chosen. `lineChosen` tells whether the list has a line that can be edited.
void ShowListMenu(HWND owner, POINT point, const Texts& texts, const ScorletGame& game, bool lineChosen);
