#pragma once

#include <windows.h>

// Lets a control of a form answer screen readers with Form::SpokenName, put together when they ask for it. In
// everything else the control answers as the system does for its kind.
void SpeakWithForm(HWND control);
