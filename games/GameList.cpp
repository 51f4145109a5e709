#include "games/GameList.h"

#include <algorithm>

namespace {

bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

// Takes the number at the start of a text, of any length, and gives its digits without leading zeros.
std::wstring_view TakeNumber(std::wstring_view& text) {
    const auto end = static_cast<size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
    std::wstring_view number = text.substr(0, end);
    text.remove_prefix(end);
    number.remove_prefix(std::min(number.find_first_not_of(L'0'), end));
    return number;
}

}  // namespace

bool NaturallyBefore(std::wstring_view first, std::wstring_view second) {
    std::wstring_view one = first, other = second;
    while (!one.empty() && !other.empty()) {
        if (IsDigit(one.front()) && IsDigit(other.front())) {
            const std::wstring_view number = TakeNumber(one), otherNumber = TakeNumber(other);
            if (number.size() != otherNumber.size()) return number.size() < otherNumber.size();
            if (number != otherNumber) return number < otherNumber;
        } else {
            if (one.front() != other.front()) return one.front() < other.front();
            one.remove_prefix(1);
            other.remove_prefix(1);
        }
    }
    if (one.empty() != other.empty()) return one.empty();
    // They differ in leading zeros at most.
    return first < second;
}

void Sort(std::vector<ListedGame>& games, GameOrder order) {
    std::ranges::sort(games, [order](const ListedGame& one, const ListedGame& other) {
        if (order == GameOrder::LatestFirst && one.Changed != other.Changed) return one.Changed > other.Changed;
        return NaturallyBefore(one.Key, other.Key);
    });
}
