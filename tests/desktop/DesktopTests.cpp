#include "tests/desktop/Steps.h"

// The tests of the real program are the scenarios in the files of steps.
[[maybe_unused]] static const bool registered = (RegisterScenarios(), true);
