#pragma once

#include <vector>

// Milliseconds from a press of the running side's clock button until that side's face has been painted with its new
// text, which a bonus changes at each press, inside one process and without sounds.
std::vector<double> MeasurePresses(int count);

// The same for one of the system's own controls in a bare window. It is as large as a face, and so is its type.
std::vector<double> MeasureBareControl(int count);

// The same from outside: from sending the space key to the real program until it answers with the new text, which it
// does once everything has been painted.
std::vector<double> MeasureKeys(int count);
