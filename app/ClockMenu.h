#pragma once

#include "platform/Handles.h"
#include "texts/Texts.h"

#include <windows.h>

// The clock window's menu bar in the language of the texts; the window owns it once it is set.
HMENU MakeClockMenu(const Texts& texts);

// Its keys.
UniqueAccelerators MakeClockAccelerators();

// An entry's text with the name of its key after it, as menus show it.
std::wstring EntryText(const Texts& texts, TextId entry, TextId key);
