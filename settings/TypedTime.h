#pragma once

#include "settings/SetupRules.h"

#include <optional>
#include <string>

// A time as it is typed on a scroll bar: a number in the bar's unit, "90", or with a colon and two digits in the units
// that are shown, "1:30".
class TypedTime {
  public:
    // The value after a digit, a colon or a backspace (the control character), in the bar's unit and its range, for a
    // bar that now has the value `shown`. What was typed before counts as long as the bar has the value that it gave; a
    // backspace otherwise begins with the number that is shown. None: the character is not taken, since the time would
    // be too long or read like no time.
    std::optional<int32_t> Type(wchar_t character, const TimeScale& scale, int32_t shown);

    // The next character begins a new time.
    void End() { text.clear(); }

  private:
    std::string text;
    int32_t value = 0;  // that it gives
};
