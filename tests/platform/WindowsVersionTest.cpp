#include "platform/WindowsVersion.h"

#include <gtest/gtest.h>

TEST(WindowsVersionTest, NamesByPlatformAndNumbers) {
    struct Row {
        uint32_t Platform, Major, Minor;
        const char* OsName;
    };
    const Row rows[] = {
        {0, 9, 9, "WIN32S"},         {1, 4, 0, "WINDOWS95"},    {1, 4, 9, "WINDOWS95"},   {1, 4, 10, "WINDOWS98"},
        {1, 4, 11, "NONE"},          {1, 4, 89, "NONE"},        {1, 4, 90, "WINDOWSME"},  {1, 3, 0, "NONE"},
        {2, 3, 51, "WINDOWSNT3.51"}, {2, 4, 7, "WINDOWSNT4"},   {2, 5, 0, "WINDOWS2000"}, {2, 5, 1, "WINDOWSXP"},
        {2, 5, 2, "NONE"},           {2, 10, 0, "WINDOWS2000"}, {2, 6, 1, "WINDOWSXP"},   {2, 2, 0, "NONE"},
        {2, 2, 1, "NONE"},           {3, 5, 1, "NONE"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(OsNameOf(WindowsVersionName(row.Platform, row.Major, row.Minor)), row.OsName)
            << row.Platform << ' ' << row.Major << '.' << row.Minor;
    }
    const Appearance newer = AppearanceOf("WINDOWSXP"), older = AppearanceOf("WINDOWS2000");
    EXPECT_EQ(std::pair(newer.BackgroundColour, newer.WindowHeight), std::pair(0xD0D0D0u, 4400));
    EXPECT_EQ(std::pair(older.BackgroundColour, older.WindowHeight), std::pair(0xBFBFBFu, 4275));
}
