#pragma once

#include "base/CalendarDate.h"

#include <windows.h>

#include <string>

// The date by the user's clock.
CalendarDate Today();

// A time in the user's short formats of date and time.
std::wstring DateAndTime(const SYSTEMTIME& time);
