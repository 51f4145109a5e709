#include "settings/SettingsRecord.h"

#include "base/RunTimeError.h"

#include <cmath>
#include <limits>

namespace {

constexpr int32_t LanguageSlot = 300;
constexpr int32_t PgnSlot = 301;

// Thrown and caught in this file: a reader of many slots stops at the first bad one.
struct BadSlot {
    RecordError error;
};

[[noreturn]] void Fail(RecordError::Rule rule, int32_t slot) { throw BadSlot{{rule, slot}}; }

int32_t Number(const SlotRecord& record, int32_t slot) {
    if (slot < 0 || slot >= SlotCount) Fail(RecordError::Rule::OutOfRange, slot);
    const SlotValue& value = record[static_cast<size_t>(slot)];
    if (const auto* number = std::get_if<int32_t>(&value)) return *number;
    if (const auto* boolean = std::get_if<bool>(&value)) return *boolean ? -1 : 0;
    if (const auto* real = std::get_if<double>(&value)) {
        const double rounded = std::nearbyint(*real);
        constexpr double least = std::numeric_limits<int32_t>::min(), most = std::numeric_limits<int32_t>::max();
        // Not written as two comparisons that a NaN would pass.
        if (!(rounded >= least && rounded <= most)) Fail(RecordError::Rule::Overflow, slot);
        return static_cast<int32_t>(rounded);
    }
    return 0;
}

// Reads slot after slot.
class Reader {
  public:
    explicit Reader(const DecodedRecord& record) : record(record) {}

    int32_t At(int32_t slot) const {
        if (record.error && slot >= record.error->slot) throw BadSlot{*record.error};
        return Number(record.slots, slot);
    }

    int32_t Next() { return At(next++); }

    int32_t Next(int32_t least, int32_t most = std::numeric_limits<int32_t>::max()) {
        const int32_t value = Next();
        if (value < least || value > most) Fail(RecordError::Rule::OutOfRange, next - 1);
        return value;
    }

    int32_t NextMinutes(int32_t least) {
        const int32_t minutes = Next(least);
        int32_t seconds;
        if (__builtin_mul_overflow(minutes, 60, &seconds)) Fail(RecordError::Rule::Overflow, next - 1);
        return seconds;
    }

    std::string NextName(int32_t longest) {
        const int32_t length = Next(0, longest);
        std::string name;
        for (int32_t i = 0; i < length; ++i) name.push_back(static_cast<char>(Next(0, 255)));
        return name;
    }

    // Check boxes are stored as 0 and 1; as booleans they are 0 and -1.
    bool NextCheck() { return Next() != 0; }

  private:
    const DecodedRecord& record;
    int32_t next = 0;
};

}  // namespace

int32_t ReadLanguage(const SlotRecord& record) {
    if (std::holds_alternative<std::monostate>(record[LanguageSlot])) return English;
    try {
        return Number(record, LanguageSlot);
    } catch (const BadSlot&) {
        return English;
    }
}

std::optional<RecordError> ReadSettings(const DecodedRecord& record, Settings& settings) {
    Reader reader(record);
    try {
        settings.PlayerNames[White] = reader.NextName(MaxNameCharacters);
        const int32_t left = MaxNameCharacters - static_cast<int32_t>(settings.PlayerNames[White].size());
        settings.PlayerNames[Black] = reader.NextName(left);
        for (Side side : BothSides) settings.PeriodLimit[side] = reader.NextMinutes(1);
        for (Side side : BothSides) settings.SecondPeriodTime[side] = reader.NextMinutes(0);
        for (Side side : BothSides) settings.MoveBonus[side] = reader.Next(0);
        settings.CountTimeDown = reader.NextCheck();
        settings.TurnClock = reader.NextCheck();
        settings.ShowMoveNumber = reader.NextCheck();
        settings.SetClockType(reader.Next());
        settings.OpenScorletAtStart = reader.NextCheck();
        // The list position is one less than the amount, and the amount plus one must still be a number.
        settings.MovesFirstPeriod = reader.Next(0, std::numeric_limits<int32_t>::max() - 2) + 1;
        settings.SetButtonSound(reader.Next(0, static_cast<int32_t>(ButtonSounds.size()) - 1));
        settings.SetFlagSound(reader.Next(0, static_cast<int32_t>(FlagSounds.size()) - 1));
        settings.WritePgn = reader.At(PgnSlot) != 0;
    } catch (const BadSlot& bad) {
        return bad.error;
    }
    // A fault behind the last setting has cost nothing, but the file is damaged.
    return record.error;
}

SlotRecord WriteSettings(const Settings& settings) {
    if (settings.PlayerNames[White].size() + settings.PlayerNames[Black].size() > MaxNameCharacters)
        throw RunTimeError(Fault::OutOfRange);

    SlotRecord record;
    size_t next = 0;
    const auto write = [&](int32_t value) {
        record[next++] = value;
    };
    for (const std::string& name : settings.PlayerNames) {
        write(static_cast<int32_t>(name.size()));
        for (char character : name) write(static_cast<uint8_t>(character));
    }
    for (int32_t seconds : settings.PeriodLimit) write(seconds / 60);
    for (int32_t seconds : settings.SecondPeriodTime) write(seconds / 60);
    for (int32_t seconds : settings.MoveBonus) write(seconds);
    write(settings.CountTimeDown);
    write(settings.TurnClock);
    write(settings.ShowMoveNumber);
    write(settings.ClockType);
    write(settings.OpenScorletAtStart);
    write(settings.MovesFirstPeriod - 1);
    write(settings.ButtonSoundIndex);
    write(settings.FlagSoundIndex);
    record[LanguageSlot] = settings.LanguageIndex;
    if (settings.WritePgn) record[PgnSlot] = int32_t{1};
    return record;
}
