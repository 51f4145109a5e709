#include "platform/WindowsVersion.h"

#include "tests/base/Rows.h"

TEST(WindowsVersionTest, NamesAndLooksByPlatformAndNumbers) {
    const auto named = [](const std::string& numbers) {
        uint32_t platform = 0, major = 0, minor = 0;
        std::istringstream(numbers) >> platform >> major >> minor;
        const std::string name = OsNameOf(WindowsVersionName(platform, major, minor));
        const auto [colour, height] = AppearanceOf(name);
        std::ostringstream text;
        text << name << ' ' << std::hex << colour << ' ' << std::dec << height;
        const std::string usual = " bfbfbf 4275";
        return text.str().ends_with(usual) ? name : text.str();
    };
    ExpectRows(named, R"(
        0 9 9 => WIN32S | 1 4 0 => WINDOWS95 | 1 4 9 => WINDOWS95 | 1 4 10 => WINDOWS98 | 1 4 11 => NONE
        1 4 89 => NONE | 1 4 90 => WINDOWSME | 1 3 0 => NONE | 2 3 51 => WINDOWSNT3.51 | 2 4 7 => WINDOWSNT4
        2 5 0 => WINDOWS2000 | 2 5 1 => WINDOWSXP d0d0d0 4400 | 2 5 2 => NONE | 2 10 0 => WINDOWS2000
        2 6 1 => WINDOWSXP d0d0d0 4400 | 2 2 0 => NONE | 2 2 1 => NONE | 3 5 1 => NONE
    )");
}
