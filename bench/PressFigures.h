#pragma once

#include <vector>

// Milliseconds from a press of the running side's clock button until that side's face stood painted with its new text
// (a bonus changes it at each press), inside one process and without sounds.
std::vector<double> MeasurePresses(int count);

// The same of a control of the system's own in a bare window, as large as a face and with type as large.
std::vector<double> MeasureBareControl(int count);

// The same from outside: from the sending of the space key to the real program until it gives the new text, which it
// does once everything has been painted.
std::vector<double> MeasureKeys(int count);
