#include "settings/Settings.h"

#include "base/RunTimeError.h"

#include <gtest/gtest.h>

TEST(SettingsTest, PresetsLeaveNamesLanguageAndPgnAlone) {
    Settings settings;
    settings.PlayerNames = {"Anna", "Bora"};
    settings.LanguageIndex = Turkish;
    settings.WritePgn = true;
    settings.SecondPeriodTime = {600, 660};
    ApplyPreset(BlitzPreset, settings);
    EXPECT_EQ(settings.PeriodLimit, (std::array{300, 300}));
    EXPECT_EQ(settings.SecondPeriodTime, (std::array{600, 660})) << "BLITZ says nothing about it";
    EXPECT_FALSE(settings.SecondPeriodEnabled);
    EXPECT_STREQ(settings.FlagSoundName, "NOSOUND");
    EXPECT_EQ(settings.PlayerNames[Black], "Bora");
    EXPECT_EQ(settings.LanguageIndex, Turkish);
    EXPECT_TRUE(settings.WritePgn);

    ApplyPreset(DefaultPreset, settings);
    EXPECT_EQ(settings.SecondPeriodTime, (std::array{1200, 1200}));
    EXPECT_TRUE(settings.SecondPeriodEnabled);
    EXPECT_STREQ(settings.FlagSoundName, "PIECEMOVED");
}

TEST(SettingsTest, SecondPeriodFollowsFromTheKnownTypesOnly) {
    Settings settings;
    const bool expected[] = {false, true, true, false};
    for (int32_t type = 0; type < 4; ++type) {
        settings.SetClockType(type);
        EXPECT_EQ(settings.SecondPeriodEnabled, expected[type]) << type;
    }
    settings.SetClockType(2);
    settings.SetClockType(7);
    EXPECT_TRUE(settings.SecondPeriodEnabled);
}

TEST(SettingsTest, SoundOutsideItsTableIsRefusedAndKeepsTheOldOne) {
    Settings settings;
    EXPECT_THROW(settings.SetButtonSound(5), RunTimeError);
    EXPECT_THROW(settings.SetFlagSound(-1), RunTimeError);
    EXPECT_NO_THROW(settings.SetFlagSound(5));
    EXPECT_STREQ(settings.ButtonSoundName, "BUTTONPUSHED");
    EXPECT_STREQ(settings.FlagSoundName, "TADA");
}
