#pragma once

#include "settings/Settings.h"
#include "settings/SlotReader.h"

// How the settings lie in their record. The names are written character by character, so every later field moves with
// their lengths; the language has slot 300 and the PGN option slot 301.

// More characters than this in both names together would push the fields into the language's slot.
inline constexpr int32_t MaxNameCharacters = 284;

// The language of a record: English where its slot is empty or could not be read, else the number as it stands.
// A number that fits no 32-bit integer is taken as empty.
int32_t DecodeLanguage(const SlotRecord& record);

// Takes the fields behind the names, from the first period to the flag sound, which the record of a saved game has in
// the same order. Throws BadSlot.
void DecodeOptions(SlotReader& slots, Settings& settings);

// Takes every setting but the language, in the order of the record. On an error, the record's own or that of a value,
// what was taken before it stays taken and the rest is as it was. Any numeric slot type is accepted for a number; an
// empty slot counts as 0.
std::optional<RecordError> DecodeSettings(const DecodedRecord& record, Settings& settings);

// The record of all settings; times in whole minutes. Throws RunTimeError(Fault::OutOfRange) when the two names
// together are longer than MaxNameCharacters.
SlotRecord EncodeSettings(const Settings& settings);
