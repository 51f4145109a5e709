#include "settings/FullNames.h"

#include "base/RunTimeError.h"

#include <bit>

namespace {

constexpr int32_t CheckSlot = 310;

int32_t CheckOf(const std::array<std::string, 2>& names) {
    uint32_t check = 0;
    const auto add = [&](size_t value) { check = check * 33 + static_cast<uint32_t>(value); };
    for (const std::string& name : names) {
        add(name.size());
        for (const char character : name) add(static_cast<uint8_t>(character));
    }
    return std::bit_cast<int32_t>(check);
}

}  // namespace

void WriteFullNames(const std::array<std::string, 2>& names, const std::array<std::wstring, 2>& fullNames,
                    SlotRecord& record) {
    if (fullNames == std::array<std::wstring, 2>{}) return;
    size_t next = CheckSlot;
    const auto write = [&](int32_t value) { record[next++] = value; };
    write(CheckOf(names));
    for (const std::wstring& name : fullNames) {
        if (name.size() > MaxFullName) throw RunTimeError(Fault::OutOfRange);
        write(static_cast<int32_t>(name.size()));
        for (const wchar_t unit : name) write(unit);
    }
}

std::array<std::wstring, 2> ReadFullNames(const std::array<std::string, 2>& names, const DecodedRecord& record) {
    std::array<std::wstring, 2> fullNames;
    SlotReader slots(record);
    slots.Skip(CheckSlot);
    if (slots.NextIsEmpty() || slots.Next() != CheckOf(names)) return fullNames;
    for (std::wstring& name : fullNames) name = slots.NextWideName(MaxFullName);
    return fullNames;
}
