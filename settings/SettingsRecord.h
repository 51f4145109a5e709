#pragma once

#include "settings/Settings.h"
#include "settings/SlotReader.h"

// The places of the settings in their record. The names are written character by character, so the slot of every later
// field depends on their lengths; but the language is always in slot 300, the PGN option in slot 301, the turned board
// in slot 302, the low time in slot 303, and the full names are in slots 310 and up.

// More characters than this in the two names together would push the fields into the language's slot.
inline constexpr int32_t MaxNameCharacters = 284;

// Whether the slot of the language holds something.
bool HasLanguage(const SlotRecord& record);

// The language of a record: English if its slot is empty or could not be read, otherwise the number as it is.
int32_t DecodeLanguage(const SlotRecord& record);

// Takes the fields after the names, from the first period to the flag sound, which the record of a saved game has in
// the same order. Periods must be multiples of `step`, in seconds. Throws BadSlot.
void DecodeOptions(SlotReader& slots, Settings& settings, int32_t step);

// Takes every setting except the language, in the order of the record. On an error, of the record or of a value, what
// was taken before it stays and the rest is as it was, except that a new first name keeps no name of the earlier pair
// beside it. Any numeric slot type is accepted for a number; an empty slot counts as 0. The periods must be whole
// minutes, and the language a number, though it is not taken.
std::optional<RecordError> DecodeSettings(const DecodedRecord& record, Settings& settings);

// Writes down whether the board is turned. The slot of a board that is not stays empty.
void WriteBoardTurned(bool turned, SlotRecord& record);

// Whether a record can hold the names: both together, and each full one, are not too long, and none has a control
// character.
bool NamesFit(const Settings& settings);

// The record of all settings; times in whole minutes. Throws RunTimeError(Fault::OutOfRange) when the names do not fit.
SlotRecord EncodeSettings(const Settings& settings);
