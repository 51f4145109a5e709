#pragma once

#include <string>

// What the edit field for moves lets in, key by key and as a whole.
class EditedMove {
  public:
    // An edit begins with this text, however long it is.
    void Begin(const std::wstring& text) { lastGood = text; }

    // Whether a character may be typed while the field holds `text`. Backspace always may. If the character may be
    // typed, the text is remembered as good.
    bool TakesKey(wchar_t character, const std::wstring& text);

    // What the field must hold once typing or pasting has made it hold `text`: nothing if there is a blank in it, the
    // last good text if it is too long, otherwise the text itself, which is then good. A text that is too long from the
    // beginning may become shorter step by step.
    std::wstring Changed(const std::wstring& text);

    const std::wstring& LastGood() const { return lastGood; }

  private:
    std::wstring lastGood;
};
