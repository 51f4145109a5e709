#include "base/TimeText.h"

#include "tests/base/Rows.h"

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
