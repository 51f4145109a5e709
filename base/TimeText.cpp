#include "base/TimeText.h"

#include <charconv>
#include <limits>

std::string TwoDigitText(int32_t part) {
    if (part >= 0 && part <= 9) return {'0', static_cast<char>('0' + part)};
    return std::to_string(part);
}

std::string HoursMinutesText(int32_t seconds) {
    return TwoDigitText(seconds / 3600) + ":" + TwoDigitText(seconds / 60 % 60);
}

std::string HoursMinutesSecondsText(int32_t seconds) {
    return HoursMinutesText(seconds) + ":" + TwoDigitText(seconds % 60);
}

std::string MinutesSecondsText(int32_t seconds) {
    return TwoDigitText(seconds / 60) + ":" + TwoDigitText(seconds % 60);
}

std::optional<int32_t> ReadTime(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    int64_t seconds = 0;
    for (int parts = 1;; ++parts) {
        const std::string_view digits = text.substr(0, text.find(':'));
        int32_t part = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), part);
        if (digits.empty() || digits.size() > (parts == 1 ? 6 : 2) || error != std::errc() ||
            end != digits.data() + digits.size() || part < 0 || (parts > 1 && part > 59))
            return std::nullopt;
        seconds = seconds * 60 + part;
        if (digits.size() == text.size()) {
            const bool good = (parts == 2 || parts == 3) && seconds <= std::numeric_limits<int32_t>::max();
            return good ? std::optional(static_cast<int32_t>(seconds)) : std::nullopt;
        }
        text.remove_prefix(digits.size() + 1);
        if (parts == 3) return std::nullopt;
    }
}
