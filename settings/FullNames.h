#pragma once

#include "settings/Settings.h"
#include "settings/SlotReader.h"

// The players' full names in a record, after all other slots: a check number of the two names that the record begins
// with, and for each side the length of its full name and its UTF-16 units. The slots are empty where the code page
// has all letters.

// The most units of one of them.
inline constexpr int32_t MaxFullName = 284;

// `names` are those at the beginning of the record. Throws RunTimeError(Fault::OutOfRange) for a full name that is too
// long.
void WriteFullNames(const std::array<std::string, 2>& names, const std::array<std::wstring, 2>& fullNames,
                    SlotRecord& record);

// Empty ones if the record has none, or if they belong to other names than it begins with, which were changed by a
// program that does not know of these slots. Throws BadSlot.
std::array<std::wstring, 2> ReadFullNames(const std::array<std::string, 2>& names, const DecodedRecord& record);
