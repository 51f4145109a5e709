#pragma once

#include "base/CalendarDate.h"

#include <array>
#include <functional>
#include <string>

// The name that is proposed for a game that has none, of its players and the day: "Anna-Bob 2024-03-09", or with " (2)"
// after it where that is taken, and so on. Every game may have it: what no file name may hold becomes "-", and dots,
// with which names of devices would begin, go. A player of whose name nothing is left has the word for the side.
std::wstring ProposedName(const std::array<std::wstring, 2>& players, const std::array<std::wstring, 2>& sides,
                          const CalendarDate& today, const std::function<bool(const std::wstring&)>& isTaken);
