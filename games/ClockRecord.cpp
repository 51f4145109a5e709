#include "games/ClockRecord.h"

#include "settings/FullNames.h"
#include "settings/SettingsRecord.h"

#include <algorithm>

namespace {

// Whether a side's flag is down by the test that a tick makes, except that a second period of no time counts here once
// it is earned: games of earlier versions went on past the limit with one.
bool OutOfTime(const modClock::ClockState& clock, Side side) {
    if (clock.Control.CountTimeDown) return clock.PlayerTime[side] == 0;
    const bool granted = clock.SecondPeriodDue[side] && clock.Control.SecondPeriodEnabled;
    return !granted &&
           int64_t{clock.Control.MoveBonus[side]} + clock.PlayerTime[side] > clock.Control.PeriodLimit[side];
}

// Counting up, a bonus may carry the time past the limit without the flag, which falls at the next second only. In
// games of earlier versions a second period of no time did the same.
bool MayWaitForTick(const modClock::ClockState& clock, Side side) {
    if (clock.Control.CountTimeDown) return false;
    const bool emptyPeriod = clock.Control.SecondPeriodEnabled && clock.Control.SecondPeriodTime[side] == 0;
    const int64_t mostByBonus = int64_t{clock.Control.MoveBonus[side]} * clock.MoveCount[side];
    return int64_t{clock.PlayerTime[side]} - clock.Control.PeriodLimit[side] <= mostByBonus + (emptyPeriod ? 1 : 0);
}

// What the last fields would say, as far as it can be told without them.
void InferProgress(modClock::ClockState& clock) {
    const Side side = clock.SideByCounts();
    clock.GameStarted = clock.MoveCount[White] > 0 && !OutOfTime(clock, side);
    clock.TurnFlag = clock.GameStarted && side == White;
    for (Side each : BothSides) {
        // The number of moves that earns the second period is one higher for White.
        const int64_t earning = int64_t{clock.Control.MovesFirstPeriod} + (each == White ? 1 : 0);
        clock.SecondPeriodArmed[each] =
            clock.Control.SecondPeriodEnabled && !clock.SecondPeriodDue[each] && clock.MoveCount[each] < earning;
    }
}

void ReadProgress(SlotReader& slots, modClock::ClockState& clock) {
    const bool white = clock.SideByCounts() == White;
    clock.TurnFlag = slots.NextCheck();
    clock.GameStarted = slots.NextCheck();
    // White runs first, so no game is under way without a move counted for it.
    const bool agrees =
        clock.GameStarted ? clock.TurnFlag == white && clock.MoveCount[White] > 0 : !clock.TurnFlag || white;
    if (!agrees) throw GameFileError{ClockFile, Damage::TurnAgainstCounts, slots.Last() - 1};
    for (bool& armed : clock.SecondPeriodArmed) armed = slots.NextCheck();
}

void ReadFields(SlotReader& slots, ClockRecord& saved) {
    for (std::string& name : saved.Options.PlayerNames) name = slots.NextName(MaxSavedName);
    DecodeOptions(slots, saved.Options, 1);
    modClock::ClockState& clock = saved.Clock;
    clock.Control = saved.Options.Control;
    for (int32_t& seconds : clock.PlayerTime) seconds = slots.Next(0);
    const int32_t lastTime = slots.Last();
    for (bool& due : clock.SecondPeriodDue) due = slots.NextCheck();
    for (int32_t& moves : clock.MoveCount) {
        moves = slots.Next(0);
        if (moves > modClock::MostMoves) throw GameFileError{ClockFile, Damage::TooManyMoves, slots.Last()};
    }
    if (clock.CountsOutOfStep()) throw GameFileError{ClockFile, Damage::CountsOutOfStep, slots.Last()};
    saved.SideToMove = slots.NextCheck() ? White : Black;
    saved.Options.WritePgn = slots.NextCheck();
    if (slots.NextIsEmpty()) {
        InferProgress(clock);
        slots.Skip(4);
    } else {
        ReadProgress(slots, clock);
    }
    // A side that waits without time would go on below zero.
    for (Side side : BothSides) {
        if (clock.GameStarted && OutOfTime(clock, side) && !MayWaitForTick(clock, side))
            throw GameFileError{ClockFile, Damage::NoTimeLeft, lastTime - (side == White ? 1 : 0)};
    }
    saved.ScorletLoaded = slots.NextIsEmpty() || slots.NextCheck();
}

}  // namespace

std::string EncodeClockRecord(const ClockRecord& saved) {
    SlotRecord record;
    size_t next = 0;
    const auto write = [&](auto value) { record[next++] = value; };
    const Settings& options = saved.Options;
    const modClock::ClockState& clock = saved.Clock;
    std::array<std::string, 2> names = options.PlayerNames;
    for (std::string& name : names) {
        name.resize(std::min(name.size(), size_t{MaxSavedName}));
        write(static_cast<int32_t>(name.size()));
        for (char character : name) write(static_cast<double>(static_cast<uint8_t>(character)));
    }
    for (int32_t seconds : clock.Control.PeriodLimit) write(seconds / 60.0);
    for (int32_t seconds : clock.Control.SecondPeriodTime) write(seconds / 60.0);
    for (int32_t seconds : clock.Control.MoveBonus) write(seconds);
    write(clock.Control.CountTimeDown);
    write(options.TurnClock);
    write(options.ShowMoveNumber);
    write(options.ClockType);
    write(options.OpenScorletAtStart);
    write(clock.Control.MovesFirstPeriod - 1);
    write(options.ButtonSoundIndex);
    write(options.FlagSoundIndex);
    for (int32_t seconds : clock.PlayerTime) write(seconds);
    for (bool due : clock.SecondPeriodDue) write(due);
    for (int32_t moves : clock.MoveCount) write(moves);
    write(saved.SideToMove == White);
    write(options.WritePgn);
    write(clock.TurnFlag);
    write(clock.GameStarted);
    for (bool armed : clock.SecondPeriodArmed) write(armed);
    write(saved.ScorletLoaded);
    WriteFullNames(names, options.FullNames, record);
    return EncodeRecord(record);
}

std::optional<GameFileError> DecodeClockRecord(std::span<const uint8_t> bytes, const Settings& present,
                                               ClockRecord& saved) {
    const DecodedRecord record = DecodeRecord(bytes);
    SlotReader slots(record);
    ClockRecord read{present, {}, White, false};
    try {
        ReadFields(slots, read);
        read.Options.FullNames = ReadFullNames(read.Options.PlayerNames, record);
    } catch (const BadSlot& bad) {
        return GameFileError{ClockFile, bad.Error.What, bad.Error.Slot};
    } catch (const GameFileError& error) {
        return error;
    }
    // A fault after the last field has cost nothing, but the file is damaged.
    if (record.Error) return GameFileError{ClockFile, record.Error->What, record.Error->Slot};
    saved = std::move(read);
    return std::nullopt;
}

std::string WithOldTail(std::string bytes, std::string_view older) {
    if (older.size() > bytes.size()) bytes += older.substr(bytes.size());
    return bytes;
}
