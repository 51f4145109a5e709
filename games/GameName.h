#pragma once

#include <string>
#include <string_view>

// What the field for a game's name lets in. It remembers the last good text.
class GameName {
  public:
    // The most characters that can be typed.
    static constexpr size_t Longest = 199;

    // Whether a typed character goes into the field that holds `text`.
    bool TakesKey(wchar_t character, std::wstring_view text) const;

    // After a change, which may have been pasted or picked, what the field should hold: the new text, or the last good
    // one where it holds what no file name may.
    std::wstring Changed(const std::wstring& text);

    const std::wstring& LastGood() const { return lastGood; }

  private:
    std::wstring lastGood;
};

// Whether Windows keeps the name for a device, whatever its letter case and what follows its first dot: NUL, COM1,
// CONIN$ ... (Naming Files, Win32 documentation).
bool IsDeviceName(std::wstring_view name);
