#include "settings/Settings.h"

#include "base/RunTimeError.h"

#include <gtest/gtest.h>

TEST(SettingsTest, SecondPeriodFollowsFromTheKnownTypesOnly) {
    Settings settings;
    for (const auto& [type, enabled] : {std::pair{0, false}, {1, true}, {3, false}, {7, false}, {2, true}, {7, true}}) {
        settings.SetClockType(type);
        EXPECT_EQ(settings.SecondPeriodEnabled, enabled) << type;
    }
}

TEST(SettingsTest, SoundOutsideItsTableIsRefusedAndKeepsTheOldOne) {
    Settings settings;
    EXPECT_THROW(settings.SetButtonSound(5), RunTimeError);
    EXPECT_THROW(settings.SetFlagSound(-1), RunTimeError);
    EXPECT_NO_THROW(settings.SetFlagSound(5));
    EXPECT_STREQ(settings.ButtonSoundName, "BUTTONPUSHED");
    EXPECT_STREQ(settings.FlagSoundName, "TADA");
}
