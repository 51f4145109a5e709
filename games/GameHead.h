#pragma once

#include "base/CalendarDate.h"
#include "recorder/MoveList.h"

#include <array>
#include <string>
#include <string_view>

// What the tag pairs at the start of the move files tell.
struct GameHead {
    CalendarDate Date;
    std::array<std::string, 2> Names;  // in the ANSI code page, of any length
};

// The result with which a list ends, or "*" where none does.
std::string_view ResultToken(const MoveLists& lists);

// The seven lines of tag pairs, each with its line end: Event, Site, Date, Round, White, Black and Result. Quotes in a
// name are written as they are; it has no line ends, which readers count.
std::string EncodeHead(const GameHead& head, std::string_view result);
