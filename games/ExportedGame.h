#pragma once

#include "base/CalendarDate.h"
#include "base/TimeControl.h"
#include "recorder/GameReading.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A game for other chess programs, as the Portable Game Notation standard has it; the kept PGN file is another one.

// What a side's face showed in seconds when a press had ended its move i + 1; no value where that is not known.
using ShownTimes = std::array<std::vector<std::optional<int32_t>>, 2>;

// What is known of a game besides its moves.
struct ExportHead {
    std::optional<CalendarDate> Date;
    std::array<std::string, 2> Names{};  // empty: not known
    std::optional<TimeControl> Control{};
};

// The result that a mate or a stalemate makes of a position, "*" for any other.
std::string_view ResultOf(const LegalPosition& position);

// The game with its tag pairs and result, in lines of less than 80 characters that end in LF. Moves that are not beyond
// doubt follow the others as a comment, as they are written; where there are several ways, the other one is a comment
// after "?". A mate or stalemate makes the result where none is declared ("*"). The names and entries are in UTF-8.
std::string ExportGame(const ExportHead& head, const GameReading& game, std::string_view declared,
                       const ShownTimes& shown = {});
