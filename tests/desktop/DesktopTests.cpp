#include "tests/desktop/Steps.h"

// The tests are the scenarios in a folder's files of steps.
[[maybe_unused]] static const bool registered = (RegisterScenarios(SCENARIOS), true);
