#pragma once

#include <cstdint>
#include <string>

// The name of the Windows version with these numbers of GetVersionExA, "NONE" for an unknown one.
std::string WindowsVersionName(uint32_t platform, uint32_t major, uint32_t minor);

// The name without its blanks and in upper case: "Windows NT 3.51" is "WINDOWSNT3.51".
std::string OsNameOf(const std::string& versionName);

// How the clock window looks on a version of Windows.
struct Appearance {
    uint32_t BackgroundColour;  // 0xRRGGBB
    int32_t WindowHeight;       // twips, 1440 to the inch
};
Appearance AppearanceOf(const std::string& osName);
