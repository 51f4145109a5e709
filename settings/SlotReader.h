#pragma once

#include "settings/SlotRecord.h"

#include <limits>
#include <string>

// No name holds these: a window would end at a NUL, and a text file's head at a line end.
constexpr bool IsControlCharacter(char character) { return (character >= 0 && character < ' ') || character == 127; }
constexpr bool IsControlCharacter(wchar_t character) { return character < L' ' || character == 127; }

// Thrown by a SlotReader at the first bad slot; it goes no further than the decoder that uses the reader.
struct BadSlot {
    RecordError Error;
};

// The slot's value as a whole number: any numeric type is accepted and rounded, and an empty slot counts as 0. Throws
// BadSlot for a slot outside the record or a number that does not fit in 32 bits.
int32_t NumberInSlot(const SlotRecord& record, int32_t slot);

// Reads the values of a record slot after slot, from slot 0. Every function throws BadSlot if the record could not be
// decoded there, or the value is not what was asked for.
class SlotReader {
  public:
    // The record must outlive the reader.
    explicit SlotReader(const DecodedRecord& record) : record(record) {}

    int32_t At(int32_t slot) const;
    int32_t At(int32_t slot, int32_t least, int32_t most = std::numeric_limits<int32_t>::max()) const;

    int32_t Next() { return At(next++); }
    int32_t Next(int32_t least, int32_t most = std::numeric_limits<int32_t>::max()) { return At(next++, least, most); }

    // Minutes, possibly with a fraction, as seconds, rounded to the nearest; they must be a multiple of `step`.
    int32_t NextMinutes(int32_t leastSeconds, int32_t step);

    // A length and that many character codes of 8 bits, none of them that of a control character.
    std::string NextName(int32_t longest);
    // Likewise of 16 bits.
    std::wstring NextWideName(int32_t longest);

    // Check boxes are stored as 0 and 1, or as booleans 0 and -1.
    bool NextCheck() { return Next() != 0; }

    bool NextIsEmpty() const;
    void Skip(int32_t slots) { next += slots; }

    // The slot that was read last.
    int32_t Last() const { return next - 1; }

  private:
    const SlotValue& Value(int32_t slot) const;

    template <typename Text>
    Text NextText(int32_t longest, int32_t greatest);

    const DecodedRecord& record;
    int32_t next = 0;
};
