#pragma once

#include <cstddef>
#include <vector>

// Milliseconds from a press of the running side's clock button until that side's face has been painted with its new
// text, which a bonus changes at each press, inside one process and without sounds, with the game kept or not.
std::vector<double> MeasurePresses(int count, bool keeping);

// What it costs to keep a game of so many moves of each side, with the Scorlet and the PGN: milliseconds on the
// window's thread, and from there until the file is on the disk.
inline constexpr int MovesOfKeptGame = 60;
struct KeepCosts {
    std::vector<double> Window, Writer;
    size_t Bytes = 0;
};
KeepCosts MeasureKeeping(int count);

// The same for one of the system's own controls in a bare window. It is as large as a face, and so is its type.
std::vector<double> MeasureBareControl(int count);

// The same from outside: from sending the space key to the real program until it answers with the new text, which it
// does once everything has been painted.
std::vector<double> MeasureKeys(int count);
