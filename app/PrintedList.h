#pragma once

#include "base/CalendarDate.h"
#include "base/Side.h"

#include <array>
#include <string>
#include <vector>

// The words of the printed list in the program's language.
struct PrintedLabels {
    std::array<std::wstring, 2> Sides;
    std::wstring Date;
};

// A game as plain text: names, date, and the two move lists side by side, Black's from column 40 on. Lines end in CR
// LF. `columns` are the lines of the lists as they are shown; there are as many rows as the longer list has. An entry
// of 39 characters or more runs into Black's, deliberately.
std::wstring PrintedList(const PrintedLabels& labels, const std::array<std::wstring, 2>& names,
                         const CalendarDate& date, const std::array<std::vector<std::wstring>, 2>& columns);
