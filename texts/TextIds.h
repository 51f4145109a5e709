#pragma once

#include <cstdint>

// Every row of the string table by name. A header's identifier is that of its text. Any other row has a text for each
// language: identifier + 1 is the Turkish one, + 2 the English, + 3 the French.
enum class TextId : int32_t {
#define HEADER_ROW(name, identifier, text) name = identifier,
#define TEXT_ROW(name, identifier, turkish, english, french) name = identifier,
#include "resources/texts.def"
#undef HEADER_ROW
#undef TEXT_ROW
};

enum Language : int32_t { Turkish = 1, English = 2, French = 3 };

// The language of the program for a language identifier of the system: English for those that it does not speak.
Language LanguageOfSystem(uint16_t identifier);

// The row that is `steps` rows after `first` in a list, whose identifiers are ten apart.
constexpr TextId RowAfter(TextId first, int32_t steps) { return TextId{static_cast<int32_t>(first) + 10 * steps}; }

// Identifier of a row's text in a language. The language is not checked: an unknown one leads to no text.
constexpr int64_t TextIdentifier(TextId row, int32_t language) { return int64_t{static_cast<int32_t>(row)} + language; }

// The row for `number` of something, either `one` or the row after it: "1 second", "2 seconds".
TextId CountRow(TextId one, int32_t number, int32_t language);

// The row that writes `number` as an ordinal: "40th", "1er", "21.".
TextId OrdinalRow(int32_t number, int32_t language);
