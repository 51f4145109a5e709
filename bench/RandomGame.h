#pragma once

#include <random>
#include <string>

// A game of legal moves, taken at random from those of a kind of piece, in words as ReplayLine reads them. It has so
// many half-moves unless mate or stalemate ends it earlier; its result is that of its last position.
std::string RandomGame(std::mt19937& random, size_t halfMoves);
