#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

// A text without blanks at its ends.
inline std::string Stripped(const std::string& text) {
    const size_t start = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(start, text.find_last_not_of(' ') + 1 - start);
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
