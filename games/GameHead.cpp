#include "games/GameHead.h"

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

}  // namespace

std::string_view ResultToken(const MoveLists& lists) {
    for (const MoveList& list : lists) {
        if (list.EndsWithResult()) return list.Entries().back().Text;
    }
    return "*";
}

std::string EncodeHead(const GameHead& head, std::string_view result) {
    return TagPair("Event", "") + TagPair("Site", "") + TagPair("Date", Dashed(head.Date)) + TagPair("Round", "") +
           TagPair("White", head.Names[White]) + TagPair("Black", head.Names[Black]) + TagPair("Result", result);
}
