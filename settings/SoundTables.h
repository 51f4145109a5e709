#pragma once

#include <array>

// Names of the "WAVE" resources for the two sound lists of the settings. "NOSOUND" is a silent wave.
inline constexpr std::array<const char*, 5> ButtonSounds{"NOSOUND", "BUTTONPUSHED", "CLICK", "TYPEWRITER", "TRAK"};

// The list calls the second entry "Flag"; it deliberately plays the sound of a moved piece.
inline constexpr std::array<const char*, 6> FlagSounds{"NOSOUND", "PIECEMOVED", "CLAP", "CASH", "GLASS", "TADA"};
