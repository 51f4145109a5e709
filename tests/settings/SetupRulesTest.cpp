#include "settings/SetupRules.h"

#include <gtest/gtest.h>

TEST(SetupRulesTest, TypesTakeAwayWhatTheyDoNotHave) {
    struct Row {
        int32_t type, second, bonus;
        bool down;
    };
    for (const Row& row : {Row{0, 0, 0, false}, Row{1, 600, 0, false}, Row{2, 600, 5, false}, Row{3, 0, 0, true}}) {
        SCOPED_TRACE(row.type);
        Settings settings;
        settings.CountTimeDown = false;
        settings.SecondPeriodTime = {600, 600};
        settings.MoveBonus = {5, 5};
        ChooseClockType(settings, row.type);
        EXPECT_EQ(settings.ClockType, row.type);
        EXPECT_EQ(settings.SecondPeriodTime[Black], row.second);
        EXPECT_EQ(settings.MoveBonus[Black], row.bonus);
        EXPECT_EQ(settings.CountTimeDown, row.down);
    }
}
