#pragma once

#include "base/Box.h"

// What the largest dialogs measure in the 96 dpi design.
namespace DialogSize {

inline constexpr Extent Setup{752, 552}, Files{768, 396}, About{726, 250};

}  // namespace DialogSize
