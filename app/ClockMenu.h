#pragma once

#include "platform/Handles.h"
#include "texts/Texts.h"

#include <windows.h>

// The clock window's menu bar in the language of the texts; the window owns it once it is set.
HMENU MakeClockMenu(const Texts& texts);

// The entry that pauses reads "Resume" while the clock is paused.
void NamePauseEntry(HMENU menu, const Texts& texts, bool paused);
void EnableEntry(HMENU menu, int entry, bool enabled);

// Its keys.
UniqueAccelerators MakeClockAccelerators();

// Whether a message is one of those keys that is about the text of an edit field: Ctrl+Z or Ctrl+Y there.
bool IsForField(const MSG& message);
