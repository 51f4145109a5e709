#pragma once

#include "settings/GameTimes.h"

#include <string>
#include <vector>

struct NamedTimes {
    std::string Name;  // UTF-8
    GameTimes Times;
};

// The text of the user's time controls: lines "name = times", see TextOf, in UTF-8. Empty lines and lines that begin
// with "#" are passed over. A person edits it too, so that a change of one control leaves all other lines as they are.
class TimeControlText {
  public:
    // The most characters that a name is given.
    static constexpr int LongestName = 40;

    explicit TimeControlText(std::string bytes) : text(std::move(bytes)) {}

    // In the order of the text. Of two with one name only the first counts, and the other is a bad line.
    std::vector<NamedTimes> Controls() const;
    // The lines that are none of these, with their numbers: "3: what it says".
    std::vector<std::string> BadLines() const;

    // Puts the control in the place of the one with its name, or at the end. IsName must hold for the name.
    void Keep(const std::string& name, const GameTimes& times);
    void Remove(const std::string& name);

    const std::string& Bytes() const { return text; }

    // Whether a control can have the name: UTF-8, not empty, with no "=" and no control character, no blank at its ends
    // and no "#" at its beginning.
    static bool IsName(const std::string& name);

  private:
    std::string text;
};
