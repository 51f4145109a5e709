#pragma once

#include "base/Damage.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <variant>

// The record that the settings file and a saved game's clock file hold: 1000 numbered slots, each a 16-bit
// little-endian type tag followed by its value. Tag 0: empty, no bytes; 3: 32-bit integer; 5: 64-bit IEEE 754 number;
// 11: 16-bit boolean, -1 for true.
inline constexpr int32_t SlotCount = 1000;

// The most bytes that a record can have, ten for each slot. What a file holds after them need not be read.
inline constexpr size_t LongestRecord = SlotCount * 10;

using SlotValue = std::variant<std::monostate, int32_t, double, bool>;
using SlotRecord = std::array<SlotValue, SlotCount>;

// What makes a record unreadable, and where.
struct RecordError {
    Damage What;
    int32_t Slot;
};

// A record as far as it could be read. On an error the slots before the one that the error names hold what the bytes
// say; that slot and those after it are empty.
struct DecodedRecord {
    SlotRecord Slots;
    std::optional<RecordError> Error;
};

// Reads a record from the start of `bytes`; what follows it is ignored.
DecodedRecord DecodeRecord(std::span<const uint8_t> bytes);

// The record's bytes: 2000 bytes of tags, with the values among them.
std::string EncodeRecord(const SlotRecord& record);
