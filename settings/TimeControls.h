#pragma once

#include "settings/TimeControlText.h"
#include "texts/Texts.h"

#include <optional>
#include <string>
#include <vector>

// The time controls by name: the usual ones, and after them the user's own, which TimeControls.txt in the data folder
// keeps.
class TimeControls {
  public:
    // `folder` with its trailing backslash. The texts must outlive the object; the usual controls have their names.
    TimeControls(const std::wstring& folder, const Texts& texts);

    // Reads the user's own. The text says which lines of the file are none, or why it could not be read; it is empty on
    // success.
    std::wstring Load();

    struct Entry {
        std::wstring Name;
        GameTimes Times;
        bool Own;
    };
    const std::vector<Entry>& All() const { return all; }
    // Positions in All. Of several controls with the same times it is `preferred` that matches, else one of the user's.
    std::optional<size_t> Matching(const GameTimes& times, std::optional<size_t> preferred) const;
    std::optional<size_t> OwnNamed(const std::wstring& name) const;

    // Change the file at once, as it then is. They throw SystemError, and the file is as it was.
    void Keep(const std::wstring& name, const GameTimes& times);
    void Remove(const std::wstring& name);

  private:
    TimeControlText Read() const;
    void Write(const TimeControlText& text);
    void Take(const TimeControlText& text);

    std::wstring folder, path;
    const Texts& texts;
    std::vector<Entry> all;
};
