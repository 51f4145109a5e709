#pragma once

#include "app/WindowPlaces.h"

#include <optional>
#include <string>

// The places of the windows as the user has left them.
struct KeptPlaces {
    int Dpi;    // of the clock's screen
    Box Alone;  // the clock without the Scorlet
    bool Maximised = false;
    std::optional<WindowPlaces> Both;
};

// Lines of a word and its numbers.
std::string WritePlaces(const KeptPlaces& places);

// No value where a text is not of that form, or a window would have no size.
std::optional<KeptPlaces> ReadPlaces(const std::string& text);
