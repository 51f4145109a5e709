#include "platform/modSound.h"

#include <mmsystem.h>

#include <algorithm>
#include <cstdint>
#include <span>

static_assert(modSound::DefaultFlags == (SND_NODEFAULT | SND_MEMORY));

namespace {

// Where the samples of the program's waves begin.
constexpr size_t WaveHead = 44;

bool IsSilent(std::span<const uint8_t> wave) {
    return std::all_of(wave.begin() + std::min(wave.size(), WaveHead), wave.end(), [](uint8_t b) { return b == 0; });
}

}  // namespace

void modSound::Play(const char* resourceName, UINT flags) {
    const HRSRC resource = FindResourceA(nullptr, resourceName, "WAVE");
    if (!resource) return;
    const HGLOBAL data = LoadResource(nullptr, resource);
    if (!data) return;
    const auto* wave = static_cast<const uint8_t*>(LockResource(data));
    // Opening the device takes tens of milliseconds, which the clock loses: too many for a sound that nobody hears.
    if (IsSilent({wave, SizeofResource(nullptr, resource)})) return;
    sndPlaySoundA(reinterpret_cast<LPCSTR>(wave), flags | SND_MEMORY);
}

void modSound::PlayBeside(const char* resourceName) { Play(resourceName, DefaultFlags | SND_ASYNC); }
