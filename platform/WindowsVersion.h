#pragma once

#include <cstdint>
#include <string>

// Name of a Windows version by the numbers of GetVersionExA, "NONE" for one that is not known.
std::string WindowsVersionName(uint32_t platform, uint32_t major, uint32_t minor);

// The name without its blanks and in upper case: "Windows NT 3.51" is "WINDOWSNT3.51".
std::string OsNameOf(const std::string& versionName);

// How the clock window looks on a version.
struct Appearance {
    uint32_t BackgroundColour;  // 0xRRGGBB
    int32_t WindowHeight;       // twips, 1440 to the inch
};
Appearance AppearanceOf(const std::string& osName);
