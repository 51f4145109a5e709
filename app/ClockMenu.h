#pragma once

#include "platform/Handles.h"
#include "texts/Texts.h"

#include <windows.h>

#include <optional>

// The clock window's menu bar in the language of the texts; the window owns it once it is set.
HMENU MakeClockMenu(const Texts& texts);

// The entry that pauses reads "Resume" while the clock is paused.
void NamePauseEntry(HMENU menu, const Texts& texts, bool paused);
void EnableEntry(HMENU menu, int entry, bool enabled);

// Its keys.
UniqueAccelerators MakeClockAccelerators();

// Whether a message is the key of a player, which is where A is on a keyboard of the United States, for the left clock,
// or two places right of L: true for the right one.
std::optional<bool> PlayerKey(const MSG& message);

// Whether a message is one of those keys that is about the text of an edit field: Ctrl+Z or Ctrl+Y there.
bool IsForField(const MSG& message);
