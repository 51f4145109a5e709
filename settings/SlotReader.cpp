#include "settings/SlotReader.h"

#include <cmath>

namespace {

[[noreturn]] void Fail(Damage rule, int32_t slot) { throw BadSlot{{rule, slot}}; }

double Real(const SlotValue& value) {
    if (const auto* number = std::get_if<int32_t>(&value)) return *number;
    if (const auto* boolean = std::get_if<bool>(&value)) return *boolean ? -1 : 0;
    if (const auto* real = std::get_if<double>(&value)) return *real;
    return 0;
}

int32_t Rounded(double real, int32_t slot) {
    if (std::isnan(real)) Fail(Damage::OutOfRange, slot);
    const double rounded = std::nearbyint(real);
    constexpr double least = std::numeric_limits<int32_t>::min(), most = std::numeric_limits<int32_t>::max();
    if (rounded < least || rounded > most) Fail(Damage::Overflow, slot);
    return static_cast<int32_t>(rounded);
}

}  // namespace

int32_t NumberInSlot(const SlotRecord& record, int32_t slot) {
    if (slot < 0 || slot >= SlotCount) Fail(Damage::OutOfRange, slot);
    return Rounded(Real(record[static_cast<size_t>(slot)]), slot);
}

const SlotValue& SlotReader::Value(int32_t slot) const {
    if (record.Error && slot >= record.Error->Slot) throw BadSlot{*record.Error};
    if (slot < 0 || slot >= SlotCount) Fail(Damage::OutOfRange, slot);
    return record.Slots[static_cast<size_t>(slot)];
}

int32_t SlotReader::At(int32_t slot) const { return Rounded(Real(Value(slot)), slot); }

int32_t SlotReader::At(int32_t slot, int32_t least, int32_t most) const {
    const int32_t value = At(slot);
    if (value < least || value > most) Fail(Damage::OutOfRange, slot);
    return value;
}

int32_t SlotReader::NextMinutes(int32_t leastSeconds, int32_t step) {
    const int32_t slot = next++;
    const int32_t seconds = Rounded(Real(Value(slot)) * 60, slot);
    if (seconds < leastSeconds || seconds % step != 0) Fail(Damage::OutOfRange, slot);
    return seconds;
}

template <typename Text>
Text SlotReader::NextText(int32_t longest, int32_t greatest) {
    const int32_t length = Next(0, longest);
    Text text;
    for (int32_t i = 0; i < length; ++i) {
        text.push_back(static_cast<typename Text::value_type>(Next(0, greatest)));
        if (IsControlCharacter(text.back())) Fail(Damage::OutOfRange, Last());
    }
    return text;
}

std::string SlotReader::NextName(int32_t longest) { return NextText<std::string>(longest, 0xFF); }

std::wstring SlotReader::NextWideName(int32_t longest) { return NextText<std::wstring>(longest, 0xFFFF); }

bool SlotReader::NextIsEmpty() const { return std::holds_alternative<std::monostate>(Value(next)); }
