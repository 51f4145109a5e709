#include "base/TimeText.h"

#include <gtest/gtest.h>

TEST(TimeTextTest, PartsHaveAtLeastTwoDigits) {
    struct Row {
        int32_t Seconds;
        const char* Face;
    };
    const Row rows[] = {
        {0, "00:00:00"},     {9, "00:00:09"},      {10, "00:00:10"},      {58, "00:00:58"},
        {59, "00:00:59"},    {60, "00:01:00"},     {3599, "00:59:59"},    {3600, "01:00:00"},
        {35999, "09:59:59"}, {216000, "60:00:00"}, {360000, "100:00:00"}, {2147483647, "596523:14:07"},
    };
    for (const Row& row : rows) EXPECT_EQ(FaceText(row.Seconds), row.Face);
    EXPECT_EQ(HoursMinutesText(1200), "00:20");
    EXPECT_EQ(MinutesSecondsText(3599), "59:59");
}
