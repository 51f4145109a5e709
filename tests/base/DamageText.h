#pragma once

#include "base/Damage.h"

#include <array>
#include <string>

// "WrongNumber 14": a damage and its place.
inline std::string DamageText(Damage damage, int place) {
    constexpr std::array names{"UnknownTag",      "ShortFile",         "OutOfRange",  "Overflow",       "TooManyMoves",
                               "CountsOutOfStep", "TurnAgainstCounts", "NoTimeLeft",  "UnknownPiece",   "BrokenLine",
                               "NoHead",          "EndsEarly",         "WrongNumber", "UnexpectedText", "TooLong"};
    return std::string(names.at(static_cast<size_t>(damage))) + " " + std::to_string(place);
}
