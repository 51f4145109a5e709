#pragma once

#include <string>

// What the move edit field lets in, key by key and as a whole.
class TypedMove {
  public:
    // Whether a character may be typed while the field holds `text`. Backspace always may. When it may, the text is
    // remembered as good.
    bool TakesKey(wchar_t character, const std::wstring& text);

    // What the field shall hold after it has come to hold `text`, by typing or pasting: nothing when there is a blank
    // in it, the last good text when it is too long, else the text itself, which then is good.
    std::wstring Changed(const std::wstring& text);

    const std::wstring& LastGood() const { return lastGood; }

  private:
    std::wstring lastGood;
};
