#pragma once

#include "base/Damage.h"
#include "base/Side.h"
#include "texts/TextIds.h"

#include <windows.h>

#include <initializer_list>
#include <string>

// The string table in the program's resources, in the language of the settings.
class Texts {
  public:
    // The language index must outlive the texts; a change of it takes effect at the next look-up.
    explicit Texts(const int32_t& languageIndex) : language(languageIndex) {}

    // Text of an identifier; empty where the table has none.
    std::wstring LookUp(int64_t identifier) const;

    std::wstring operator()(TextId row) const { return LookUp(TextIdentifier(row, LanguageIndex())); }

    // The text of a menu entry with the name of its key after it, as menus show it.
    std::wstring WithKey(TextId entry, TextId key) const { return (*this)(entry) + L"\t" + (*this)(key); }

    // Text of a row with its %1 to %9 replaced.
    template <typename... Parts>
    std::wstring Compose(TextId row, const Parts&... parts) const {
        return ComposeOf(row, {parts...});
    }

    // "White" or "Black", to be spoken.
    std::wstring SideName(Side side) const;

    // A time in words, without the parts that are 0: "1 hour 5 seconds".
    std::wstring Duration(int32_t seconds) const;

    // Why a call of the system failed.
    std::wstring Reason(DWORD code) const;

    // What is wrong with a damaged file, and where.
    std::wstring Reason(Damage damage, int32_t place, int32_t column = 0) const;

    // That of the texts: English where the settings have the number of none.
    int32_t LanguageIndex() const { return language >= Turkish && language <= French ? language : English; }

  private:
    std::wstring ComposeOf(TextId row, std::initializer_list<std::wstring> parts) const;

    const int32_t& language;
};
