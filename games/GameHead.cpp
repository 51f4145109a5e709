#include "games/GameHead.h"

#include <algorithm>
#include <cstdio>

namespace {

std::string TagPair(std::string_view tag, std::string_view value) {
    std::string line = "[";
    line += tag;
    line += " \"";
    line += value;
    line += "\"]\r\n";
    return line;
}

std::string Dashed(const CalendarDate& date) {
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.Year, date.Month, date.Day);
    return text;
}

// Readers count the lines of the head, so that no name may bring one of its own. None that was typed does.
std::string OnOneLine(std::string name) {
    std::ranges::replace_if(
        name, [](char character) { return character == '\r' || character == '\n'; }, ' ');
    return name;
}

}  // namespace

std::string_view ResultToken(const MoveLists& lists) {
    for (const MoveList& list : lists) {
        if (list.EndsWithResult()) return list.Entries().back().Text;
    }
    return "*";
}

std::string EncodeHead(const GameHead& head, std::string_view result) {
    return TagPair("Event", "") + TagPair("Site", "") + TagPair("Date", Dashed(head.Date)) + TagPair("Round", "") +
           TagPair("White", OnOneLine(head.Names[White])) + TagPair("Black", OnOneLine(head.Names[Black])) +
           TagPair("Result", result);
}
