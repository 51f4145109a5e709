#pragma once

#include "base/Damage.h"

#include <gtest/gtest.h>

#include <array>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

// A text without blanks at its ends.
inline std::string Stripped(const std::string& text) {
    const size_t start = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(start, text.find_last_not_of(' ') + 1 - start);
}

inline std::vector<std::string> Words(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

// Expects of each row of a table, "what is given => what comes of it", that the function makes the second of the first.
// A line may hold several rows, with " | " between them; a line of its own, with a full stop,
// explains those below it.
inline void ExpectRows(std::string (*made)(const std::string&), const std::string& table) {
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        for (line += " | "; !line.empty(); line.erase(0, line.find(" | ") + 3)) {
            const std::string row = line.substr(0, line.find(" | "));
            const size_t arrow = row.find("=>");
            if (arrow == std::string::npos)
                EXPECT_TRUE(Stripped(row).empty() || row.ends_with('.')) << row;
            else
                EXPECT_EQ(Stripped(made(Stripped(row.substr(0, arrow)))), Stripped(row.substr(arrow + 2))) << row;
        }
    }
}

// "WrongNumber 14": a damage and its place.
inline std::string DamageText(Damage damage, int place) {
    constexpr std::array names{"UnknownTag",      "ShortFile",         "OutOfRange",  "Overflow",       "TooManyMoves",
                               "CountsOutOfStep", "TurnAgainstCounts", "NoTimeLeft",  "UnknownPiece",   "BrokenLine",
                               "NoHead",          "EndsEarly",         "WrongNumber", "UnexpectedText", "TooLong"};
    return std::string(names.at(static_cast<size_t>(damage))) + " " + std::to_string(place);
}
