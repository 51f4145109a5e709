#pragma once

#include "settings/Settings.h"
#include "settings/SlotRecord.h"
#include "tests/base/Rows.h"

#include <span>

// Settings with a value of its own in every field.
inline Settings Unusual() {
    Settings settings;
    settings.PlayerNames = {"Ann", "B"};
    settings.Control = {{60, 10800}, {0, 600}, {3599, 7}, false, true, 1};
    settings.TurnClock = settings.WritePgn = true;
    settings.ShowMoveNumber = settings.OpenScorletAtStart = false;
    settings.ClockType = 2;
    settings.SetButtonSound(4);
    settings.SetFlagSound(5);
    settings.LanguageIndex = French;
    return settings;
}

// All settings: the names, the times, the options that are on, the type and its moves, the sounds, the language, and
// whether the board is turned.
inline std::string SettingsText(const Settings& settings) {
    std::ostringstream text;
    const auto& control = settings.Control;
    text << settings.PlayerNames[White] << '/' << settings.PlayerNames[Black];
    for (const auto& times : {control.PeriodLimit, control.SecondPeriodTime, control.MoveBonus})
        text << ' ' << times[White] << ',' << times[Black];
    const std::pair<bool, const char*> options[] = {
        {control.CountTimeDown, " down"},     {control.SecondPeriodEnabled, " second"}, {settings.TurnClock, " turn"},
        {settings.ShowMoveNumber, " number"}, {settings.OpenScorletAtStart, " open"},   {settings.WritePgn, " pgn"}};
    for (const auto& [on, name] : options) text << (on ? name : "");
    text << ' ' << settings.ClockType << ':' << control.MovesFirstPeriod << ' ' << settings.ButtonSoundName << ' '
         << settings.FlagSoundName << ' ' << settings.LanguageIndex << (settings.BoardTurned ? " turned" : "");
    if (settings.LowTime != 0) text << " low " << settings.LowTime;
    return text.str();
}

// A record with some fields changed: "bonus0=5", a real number "second1=0.5", an empty slot "type=-", or by number
// "300=3". `first` is the slot of the first field after the names.
inline SlotRecord Changed(SlotRecord record, const std::string& changes, size_t first) {
    for (const std::string& word : Words(changes)) {
        const std::string name = word.substr(0, word.find('=')), value = word.substr(word.find('=') + 1);
        size_t slot = name[0] <= '9' ? std::stoul(name) : first;
        std::istringstream names(
            "first0 first1 second0 second1 bonus0 bonus1 down turn number type open moves button flag "
            "time0 time1 due0 due1 white black writer pgn white's started armed0 armed1 loaded");
        for (std::string field; name[0] > '9' && names >> field && field != name;) ++slot;
        record[slot] = value == "-"                                     ? SlotValue()
                       : value.find_first_of(".n") == std::string::npos ? SlotValue(std::stoi(value))
                                                                        : SlotValue(std::stod(value));
    }
    return record;
}

inline std::span<const uint8_t> Bytes(const std::string& text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}
