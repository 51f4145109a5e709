#include "settings/SettingsRecord.h"

#include "base/RunTimeError.h"
#include "settings/FullNames.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int32_t LanguageSlot = 300;
constexpr int32_t PgnSlot = 301;
constexpr int32_t BoardSlot = 302;
constexpr int32_t LowTimeSlot = 303;  // seconds

}  // namespace

bool HasLanguage(const SlotRecord& record) { return !std::holds_alternative<std::monostate>(record[LanguageSlot]); }

int32_t DecodeLanguage(const SlotRecord& record) {
    if (!HasLanguage(record)) return English;
    try {
        return NumberInSlot(record, LanguageSlot);
    } catch (const BadSlot&) {
        return English;
    }
}

void DecodeOptions(SlotReader& slots, Settings& settings, int32_t step) {
    for (int32_t& seconds : settings.Control.PeriodLimit) seconds = slots.NextMinutes(60, step);
    for (int32_t& seconds : settings.Control.SecondPeriodTime) seconds = slots.NextMinutes(0, step);
    for (int32_t& seconds : settings.Control.MoveBonus) seconds = slots.Next(0);
    settings.Control.CountTimeDown = slots.NextCheck();
    settings.TurnClock = slots.NextCheck();
    settings.ShowMoveNumber = slots.NextCheck();
    settings.SetClockType(slots.Next());
    settings.OpenScorletAtStart = slots.NextCheck();
    // The list position is one less than the amount, and the amount plus one must still fit.
    settings.Control.MovesFirstPeriod = slots.Next(0, std::numeric_limits<int32_t>::max() - 2) + 1;
    settings.SetButtonSound(slots.Next(0, static_cast<int32_t>(ButtonSounds.size()) - 1));
    settings.SetFlagSound(slots.Next(0, static_cast<int32_t>(FlagSounds.size()) - 1));
}

std::optional<RecordError> DecodeSettings(const DecodedRecord& record, Settings& settings) {
    SlotReader reader(record);
    try {
        // What was Black's name might be too long for one record with White's.
        settings.PlayerNames = {reader.NextName(MaxNameCharacters), {}};
        settings.FullNames = {};
        const int32_t left = MaxNameCharacters - static_cast<int32_t>(settings.PlayerNames[White].size());
        settings.PlayerNames[Black] = reader.NextName(left);
        DecodeOptions(reader, settings, 60);
        reader.At(LanguageSlot);
        settings.WritePgn = reader.At(PgnSlot) != 0;
        settings.BoardTurned = reader.At(BoardSlot) != 0;
        settings.LowTime = reader.At(LowTimeSlot, 0);
        settings.FullNames = ReadFullNames(settings.PlayerNames, record);
    } catch (const BadSlot& bad) {
        return bad.Error;
    }
    // A fault after the last setting has cost nothing, but the file is damaged.
    return record.Error;
}

void WriteBoardTurned(bool turned, SlotRecord& record) {
    record[BoardSlot] = turned ? SlotValue(int32_t{1}) : SlotValue();
}

bool NamesFit(const Settings& settings) {
    const auto clean = [](const auto& name) {
        return std::ranges::none_of(name, [](auto character) { return IsControlCharacter(character); });
    };
    const auto fits = [&](const std::wstring& name) { return name.size() <= MaxFullName && clean(name); };
    return settings.PlayerNames[White].size() + settings.PlayerNames[Black].size() <= MaxNameCharacters &&
           std::ranges::all_of(settings.PlayerNames, clean) && std::ranges::all_of(settings.FullNames, fits);
}

SlotRecord EncodeSettings(const Settings& settings) {
    if (!NamesFit(settings)) throw RunTimeError(Fault::OutOfRange);

    SlotRecord record;
    size_t next = 0;
    const auto write = [&](int32_t value) { record[next++] = value; };
    for (const std::string& name : settings.PlayerNames) {
        write(static_cast<int32_t>(name.size()));
        for (char character : name) write(static_cast<uint8_t>(character));
    }
    for (int32_t seconds : settings.Control.PeriodLimit) write(seconds / 60);
    for (int32_t seconds : settings.Control.SecondPeriodTime) write(seconds / 60);
    for (int32_t seconds : settings.Control.MoveBonus) write(seconds);
    write(settings.Control.CountTimeDown);
    write(settings.TurnClock);
    write(settings.ShowMoveNumber);
    write(settings.ClockType);
    write(settings.OpenScorletAtStart);
    write(settings.Control.MovesFirstPeriod - 1);
    write(settings.ButtonSoundIndex);
    write(settings.FlagSoundIndex);
    record[LanguageSlot] = settings.LanguageIndex;
    if (settings.WritePgn) record[PgnSlot] = int32_t{1};
    WriteBoardTurned(settings.BoardTurned, record);
    if (settings.LowTime > 0) record[LowTimeSlot] = settings.LowTime;
    WriteFullNames(settings.PlayerNames, settings.FullNames, record);
    return record;
}
