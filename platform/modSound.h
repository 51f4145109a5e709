#pragma once

#include <windows.h>

// Sounds are "WAVE" resources, played from memory.
namespace modSound {

// SND_NODEFAULT, so that nothing is played in place of a missing sound, and SND_MEMORY: it is an image in memory.
inline constexpr UINT DefaultFlags = 6;

// Plays the resource of that name and returns when it has ended; a wave of silence ends at once. Silent when there is
// no such resource or no device to play on. `flags` are those of sndPlaySound; the memory flag is always added.
void Play(const char* resourceName, UINT flags = DefaultFlags);

// Plays it and returns at once.
void PlayBeside(const char* resourceName);

}  // namespace modSound
