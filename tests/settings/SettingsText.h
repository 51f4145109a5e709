#pragma once

#include "settings/Settings.h"
#include "settings/SlotRecord.h"

#include <span>
#include <sstream>
#include <string>

// All settings: the names, the times, the options that are on, the type and its moves, the sounds, the language.
inline std::string SettingsText(const Settings& settings) {
    std::ostringstream text;
    const auto& control = settings.Control;
    text << settings.PlayerNames[White] << '|' << settings.PlayerNames[Black];
    for (const auto& times : {control.PeriodLimit, control.SecondPeriodTime, control.MoveBonus})
        text << ' ' << times[White] << ',' << times[Black];
    const std::pair<bool, const char*> options[] = {
        {control.CountTimeDown, " down"},     {control.SecondPeriodEnabled, " second"}, {settings.TurnClock, " turn"},
        {settings.ShowMoveNumber, " number"}, {settings.OpenScorletAtStart, " open"},   {settings.WritePgn, " pgn"}};
    for (const auto& [on, name] : options) text << (on ? name : "");
    text << ' ' << settings.ClockType << ':' << control.MovesFirstPeriod << ' ' << settings.ButtonSoundName << ' '
         << settings.FlagSoundName << ' ' << settings.LanguageIndex;
    return text.str();
}

// The slots of a record up to its last one that holds something: "2 1.5 true -", reals with a point, empty ones as "-".
inline std::string SlotText(const SlotRecord& record) {
    std::string text, gap;
    for (const SlotValue& slot : record) {
        std::ostringstream value;
        value << std::showpoint << std::boolalpha;
        if (const auto* number = std::get_if<int32_t>(&slot)) value << *number;
        if (const auto* real = std::get_if<double>(&slot)) value << *real;
        if (const auto* boolean = std::get_if<bool>(&slot)) value << *boolean;
        gap += value.str().empty() ? "- " : "";
        if (value.str().empty()) continue;
        text += gap + value.str() + " ";
        gap.clear();
    }
    return text;
}

inline std::span<const uint8_t> Bytes(const std::string& text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}
