#include "base/TimeText.h"

#include "tests/base/Rows.h"

TEST(TimeTextTest, TimesAreReadAsTheyAreTyped) {
    const auto read = [](const std::string& text) {
        const auto seconds = ReadTime(text);
        return seconds ? std::to_string(*seconds) : "none";
    };
    ExpectRows(read, R"(
        00:00:00 => 0 | 0:5 => 5 | 12:31 => 751 | 1:02:03 => 3723 | 99:59:59 => 359999 | 60:00 => 3600 | 100:00 => 6000 | 9999:00:01 => 35996401
        596523:14:07 => 2147483647 | 596523:14:08 => none | 999999:59 => 59999999
        => none | 5 => none | : => none | 1: => none | 1::2 => none | 1:60 => none | 1:60:00 => none | 1:2:3:4 => none
        1:-2 => none | 1:2x => none | 1000000:00 => none | 1:002 => none | 1 :02 => none
    )");
    EXPECT_EQ(ReadTime("  1:30 "), 90);
}

TEST(TimeTextTest, PartsHaveAtLeastTwoDigits) {
    const auto texts = [](const std::string& seconds) {
        return HoursMinutesText(std::stoi(seconds)) + " " + MinutesSecondsText(std::stoi(seconds));
    };
    ExpectRows(texts, R"(
        0 => 00:00 00:00 | 1 => 00:00 00:01 | 9 => 00:00 00:09 | 10 => 00:00 00:10 | 58 => 00:00 00:58
        59 => 00:00 00:59 | 60 => 00:01 01:00 | 3599 => 00:59 59:59 | 3600 => 01:00 60:00 | 35999 => 09:59 599:59
        360000 => 100:00 6000:00 | 2147483647 => 596523:14 35791394:07
    )");
}
