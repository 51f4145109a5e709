#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A saved game as the listing of its folder tells of it, without a look into its files.
struct ListedGame {
    std::wstring Name;
    std::wstring Key;  // the name with all its letters in one case, by which it is sorted
    uint64_t Changed;  // when its clock file was written: the higher, the later
};

// Whether one text comes before another where numbers count as such: "Final 9" before "Final 10".
bool NaturallyBefore(std::wstring_view first, std::wstring_view second);

enum class GameOrder { ByName, LatestFirst };

// Games of one date are in the order of their names.
void Sort(std::vector<ListedGame>& games, GameOrder order);
