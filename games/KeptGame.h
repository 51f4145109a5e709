#pragma once

#include "games/GameCodec.h"

// A game that the program keeps by itself: the files of a saved game as one file, so that it can be replaced whole.

std::string EncodeKeptGame(const GameFiles& files);

// What makes such a file unreadable, and at which byte, from 0.
struct KeptGameError {
    Damage What;
    int32_t Place;
};
std::optional<KeptGameError> DecodeKeptGame(std::span<const uint8_t> bytes, GameFiles& files);

// Whether players would want to go on with it: it has begun and has no result yet.
bool IsUnderWay(const SavedGame& game);
