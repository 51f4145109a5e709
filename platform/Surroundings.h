#pragma once

#include "platform/Environment.h"
#include "platform/MessageBoxes.h"
#include "platform/clsFileSystem.h"

// What every window of the program works with. All of it must outlive the window.
struct Surroundings {
    const Texts& Wording;  // in the language of the settings
    const MessageBoxes& Boxes;
    const Environment& System;
    clsFileSystem& Log;
};
