#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Text of one part of a time, at least two digits: 0 is "00", 7 is "07", 59 is "59", 100 is "100".
// `part` must not be negative.
std::string TwoDigitText(int32_t part);

// Seconds as "HH:MM"; hours are not limited to two digits, and what is left of the last minute is not shown.
std::string HoursMinutesText(int32_t seconds);

// Seconds as "HH:MM:SS"; hours are not limited to two digits.
std::string HoursMinutesSecondsText(int32_t seconds);

// Seconds as "MM:SS" for times under an hour; minutes are not limited to two digits.
std::string MinutesSecondsText(int32_t seconds);

// Seconds of a time that is written as "H:MM:SS" or "MM:SS"; the first part has up to six digits. With blanks around
// it or none. No value where the text is something else.
std::optional<int32_t> ReadTime(std::string_view text);
