#include "settings/TypedTime.h"

#include <algorithm>

namespace {

constexpr wchar_t Backspace = L'\b';
// More than any time that a bar has, with zeros before it.
constexpr size_t LongestText = 6;

// The number of a text of digits with a colon or without; none if it is no time.
std::optional<int32_t> NumberOf(const std::string& text) {
    const size_t colon = std::min(text.find(':'), text.size());
    const std::string large = text.substr(0, colon), small = text.substr(std::min(colon + 1, text.size()));
    if (text.size() > LongestText || (colon < text.size() && large.empty()) || small.size() > 2 ||
        small.find(':') != std::string::npos || (!small.empty() && small[0] > '5'))
        return std::nullopt;
    const auto number = [](const std::string& digits) { return digits.empty() ? 0 : std::stoi(digits); };
    if (colon == text.size()) return number(large);
    return number(large) * 60 + number(small);
}

}  // namespace

std::optional<int32_t> TypedTime::Type(wchar_t character, const TimeScale& scale, int32_t shown) {
    std::string next = shown == value ? text : std::string();
    if (character == Backspace) {
        if (next.empty()) next = std::to_string(shown);
        next.pop_back();
    } else if ((character >= L'0' && character <= L'9') || character == L':') {
        next += static_cast<char>(character);
    } else {
        return std::nullopt;
    }
    const auto number = NumberOf(next);
    if (!number || *number > scale.Most) return std::nullopt;
    text = next;
    value = std::max(*number, scale.Least);
    return value;
}
