#include "base/TimeText.h"

std::string TwoDigitText(int32_t part) {
    if (part == 0) return "00";
    if (part >= 1 && part <= 9) return {'0', static_cast<char>('0' + part)};
    if (part >= 10 && part <= 58) return std::to_string(part);
    // The last second or minute before the carry is deliberately a case of its own, apart from hours beyond it.
    if (part == 59) return "59";
    return std::to_string(part);
}

std::string HoursMinutesText(int32_t seconds) {
    return TwoDigitText(seconds / 3600) + ":" + TwoDigitText(seconds / 60 % 60);
}

std::string MinutesSecondsText(int32_t seconds) {
    return TwoDigitText(seconds / 60) + ":" + TwoDigitText(seconds % 60);
}
