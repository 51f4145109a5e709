#pragma once

#include <algorithm>
#include <string_view>

// The words of a text between its blanks, one after the other. The text must outlive them. A stream would do the same,
// but the program would be half as large again.
class WordReader {
  public:
    explicit WordReader(std::string_view text) : rest(text) {}

    // Empty at the end.
    std::string_view Take() {
        constexpr std::string_view blanks = " \t\r\n\v\f";
        rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
        const std::string_view word = rest.substr(0, rest.find_first_of(blanks));
        rest.remove_prefix(word.size());
        return word;
    }

  private:
    std::string_view rest;
};
