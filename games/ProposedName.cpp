#include "games/ProposedName.h"

#include "games/GameName.h"

#include <algorithm>
#include <cstdio>

namespace {

// So that both names, the date and a number are no longer than a name may be.
constexpr size_t LongestPart = 80;

std::wstring PartOf(const std::wstring& player) {
    std::wstring part;
    for (const wchar_t character : player) {
        if (character != L'.') part.push_back(GameName::MayHold(character) ? character : L'-');
    }
    part.erase(0, part.find_first_not_of(L' '));
    part.resize(std::min(part.size(), LongestPart));
    part.erase(part.find_last_not_of(L' ') + 1);
    return part;
}

}  // namespace

std::wstring ProposedName(const std::array<std::wstring, 2>& players, const std::array<std::wstring, 2>& sides,
                          const CalendarDate& today, const std::function<bool(const std::wstring&)>& isTaken) {
    std::array<std::wstring, 2> parts;
    for (size_t side = 0; side < 2; ++side) {
        parts[side] = PartOf(players[side]);
        if (parts[side].empty()) parts[side] = sides[side];
    }
    wchar_t date[40];
    std::swprintf(date, 40, L" %04d-%02d-%02d", today.Year, today.Month, today.Day);
    const std::wstring name = parts[0] + L"-" + parts[1] + date;
    std::wstring free = name;
    for (int number = 2; isTaken(free); ++number) free = name + L" (" + std::to_wstring(number) + L")";
    return free;
}
