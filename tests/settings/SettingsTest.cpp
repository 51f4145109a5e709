#include "settings/Settings.h"

#include <gtest/gtest.h>

TEST(SettingsTest, SecondPeriodFollowsFromTheKnownTypesOnly) {
    Settings settings;
    for (const auto& [type, enabled] : {std::pair{0, false}, {1, true}, {3, false}, {7, false}, {2, true}, {7, true}}) {
        settings.SetClockType(type);
        EXPECT_EQ(settings.SecondPeriodEnabled, enabled) << type;
    }
}
