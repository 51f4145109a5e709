#include "settings/modSound.h"

#include <mmsystem.h>

static_assert(modSound::DefaultFlags == (SND_NODEFAULT | SND_MEMORY));

void modSound::Play(const char* resourceName, UINT flags) {
    const HRSRC resource = FindResourceA(nullptr, resourceName, "WAVE");
    if (!resource) return;
    const HGLOBAL data = LoadResource(nullptr, resource);
    if (!data) return;
    sndPlaySoundA(static_cast<LPCSTR>(LockResource(data)), flags | SND_MEMORY);
}
