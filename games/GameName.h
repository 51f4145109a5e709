#pragma once

#include "texts/TextIds.h"

#include <optional>
#include <string>
#include <string_view>

// What the field for a game's name lets in. It remembers the last good text.
class GameName {
  public:
    // The most characters of a name.
    static constexpr size_t Longest = 199;

    // Whether a file name may hold the character.
    static bool MayHold(wchar_t character);

    // Whether a typed character goes into the field that holds `text`.
    bool TakesKey(wchar_t character, std::wstring_view text) const;

    // After a change, which may have been pasted or picked, what the field should hold: the new text, or the last good
    // one where it holds what no file name may.
    std::wstring Changed(const std::wstring& text);

    const std::wstring& LastGood() const { return lastGood; }

  private:
    std::wstring lastGood;
};

// Why no new game may have the name, as a text that takes the name as %1 and GameName::Longest as %2; no value for a
// good name. Windows keeps some for devices, whatever their letter case and what follows their first dot, and other
// programs lose blanks and dots at the end (Naming Files, Win32 documentation).
std::optional<TextId> FaultOfName(std::wstring_view name);
