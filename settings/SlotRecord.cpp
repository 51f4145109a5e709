#include "settings/SlotRecord.h"

#include <bit>
#include <type_traits>

namespace {

enum Tag : uint16_t { Empty = 0, Long = 3, Double = 5, Boolean = 11 };

// The file is little-endian, whatever the byte order of the machine.
template <typename Unsigned>
class Field {
  public:
    static bool Read(std::span<const uint8_t>& bytes, Unsigned& value) {
        if (bytes.size() < sizeof(Unsigned)) return false;
        value = 0;
        for (size_t i = 0; i < sizeof(Unsigned); ++i)
            value = static_cast<Unsigned>(value | Unsigned{bytes[i]} << (8 * i));
        bytes = bytes.subspan(sizeof(Unsigned));
        return true;
    }
    static void Write(std::string& bytes, Unsigned value) {
        for (size_t i = 0; i < sizeof(Unsigned); ++i) bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    }
};

std::optional<Damage> ReadSlot(std::span<const uint8_t>& bytes, SlotValue& slot) {
    constexpr auto shortFile = Damage::ShortFile;
    uint16_t tag;
    if (!Field<uint16_t>::Read(bytes, tag)) return shortFile;
    switch (tag) {
        case Empty: slot = std::monostate{}; return std::nullopt;
        case Long: {
            uint32_t bits;
            if (!Field<uint32_t>::Read(bytes, bits)) return shortFile;
            slot = std::bit_cast<int32_t>(bits);
            return std::nullopt;
        }
        case Double: {
            uint64_t bits;
            if (!Field<uint64_t>::Read(bytes, bits)) return shortFile;
            slot = std::bit_cast<double>(bits);
            return std::nullopt;
        }
        case Boolean: {
            uint16_t bits;
            if (!Field<uint16_t>::Read(bytes, bits)) return shortFile;
            slot = bits != 0;
            return std::nullopt;
        }
        default: return Damage::UnknownTag;
    }
}

}  // namespace

DecodedRecord DecodeRecord(std::span<const uint8_t> bytes) {
    DecodedRecord record;
    for (int32_t i = 0; i < SlotCount && !record.Error; ++i) {
        if (const auto rule = ReadSlot(bytes, record.Slots[static_cast<size_t>(i)])) record.Error = {*rule, i};
    }
    return record;
}

std::string EncodeRecord(const SlotRecord& record) {
    std::string bytes;
    bytes.reserve(SlotCount * 2 + 512);
    for (const SlotValue& slot : record) {
        if (const auto* number = std::get_if<int32_t>(&slot)) {
            Field<uint16_t>::Write(bytes, Long);
            Field<uint32_t>::Write(bytes, std::bit_cast<uint32_t>(*number));
        } else if (const auto* real = std::get_if<double>(&slot)) {
            Field<uint16_t>::Write(bytes, Double);
            Field<uint64_t>::Write(bytes, std::bit_cast<uint64_t>(*real));
        } else if (const auto* boolean = std::get_if<bool>(&slot)) {
            Field<uint16_t>::Write(bytes, Boolean);
            Field<uint16_t>::Write(bytes, *boolean ? 0xFFFF : 0);
        } else {
            Field<uint16_t>::Write(bytes, Empty);
        }
    }
    return bytes;
}
