#include "platform/WindowsVersion.h"

#include "base/AsciiCase.h"

std::string WindowsVersionName(uint32_t platform, uint32_t major, uint32_t minor) {
    if (platform == 0) return "Win32s";
    if (platform == 1 && major == 4) {
        if (minor < 10) return "Windows 95";
        if (minor == 10) return "Windows 98";
        if (minor >= 90) return "Windows ME";
    }
    if (platform == 2) {
        if (major == 3) return "Windows NT 3.51";
        if (major == 4) return "Windows NT 4";
        if (major >= 5 && minor == 0) return "Windows 2000";
        if (major >= 5 && minor == 1) return "Windows XP";
    }
    return "NONE";
}

std::string OsNameOf(const std::string& versionName) {
    std::string name;
    for (char character : versionName) {
        if (character != ' ') name.push_back(AsciiUpper(character));
    }
    return name;
}

Appearance AppearanceOf(const std::string& osName) {
    if (osName == "WINDOWSXP") return {0xD0D0D0, 4400};
    return {0xBFBFBF, 4275};
}
