#pragma once

#include <cstdint>

// Every row of the string table by name. A row's identifier ends in 0 or leads to one per language:
// identifier + 1 Turkish, + 2 English, + 3 French.
enum class TextId : int32_t {
#define HEADER_ROW(name, identifier, text) name = identifier,
#define TEXT_ROW(name, identifier, turkish, english, french) name = identifier,
#include "resources/texts.def"
#undef HEADER_ROW
#undef TEXT_ROW
};

enum Language : int32_t { Turkish = 1, English = 2, French = 3 };

// The row `steps` rows of ten behind `first`, for lists whose texts stand in a row.
constexpr TextId RowBehind(TextId first, int32_t steps) { return TextId{static_cast<int32_t>(first) + 10 * steps}; }

// Identifier of a text in a language. The language is taken as it stands; one that no row has leads to no text.
constexpr int64_t TextIdentifier(TextId row, int32_t language) { return int64_t{static_cast<int32_t>(row)} + language; }

// The row of `one`, or the one behind it, that counts `number` of something: "1 second", "2 seconds".
TextId CountRow(TextId one, int32_t number, int32_t language);

// The row that writes `number` as an ordinal: "40th", "1er", "21.".
TextId OrdinalRow(int32_t number, int32_t language);
