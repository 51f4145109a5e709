#pragma once

#include <array>

// The two sides of every indexed pair: clock buttons, panels, player names, move lists.
enum Side : int { White = 0, Black = 1 };

inline constexpr std::array<Side, 2> BothSides{White, Black};

constexpr Side Other(Side side) { return side == White ? Black : White; }
