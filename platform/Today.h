#pragma once

#include "base/CalendarDate.h"

// The date by the user's clock.
CalendarDate Today();
