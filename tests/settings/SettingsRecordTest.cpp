#include "settings/SettingsRecord.h"

#include "base/RunTimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>

namespace {

Settings Unusual() {
    Settings settings;
    settings.PlayerNames = {"Ana\xF1", ""};
    settings.Control.PeriodLimit = {60, 10800};
    settings.Control.SecondPeriodTime = {0, 600};
    settings.Control.MoveBonus = {3599, 7};
    settings.Control.CountTimeDown = false;
    settings.TurnClock = true;
    settings.ShowMoveNumber = false;
    settings.SetClockType(2);
    settings.OpenScorletAtStart = false;
    settings.Control.MovesFirstPeriod = 1;
    settings.SetButtonSound(4);
    settings.SetFlagSound(5);
    settings.WritePgn = true;
    settings.LanguageIndex = French;
    return settings;
}

constexpr int32_t Most = std::numeric_limits<int32_t>::max();

}  // namespace

TEST(SettingsRecordTest, RoundTripKeepsEverything) {
    const SlotRecord record = EncodeSettings(Unusual());
    Settings read;
    EXPECT_FALSE(DecodeSettings({record, {}}, read));
    read.LanguageIndex = DecodeLanguage(record);
    EXPECT_EQ(EncodeSettings(read), record);
    EXPECT_EQ(read.Control.PeriodLimit, (std::array{60, 10800}));
    EXPECT_TRUE(read.Control.SecondPeriodEnabled && read.TurnClock && read.WritePgn);
    EXPECT_FALSE(read.Control.CountTimeDown || read.ShowMoveNumber || read.OpenScorletAtStart);
}

TEST(SettingsRecordTest, FieldsFollowTheNames) {
    const SlotRecord record = EncodeSettings(Unusual());
    const std::map<size_t, int32_t> wanted{{0, 4}, {4, 0xF1}, {5, 0}, {6, 1}, {7, 180}, {13, 1}, {19, 5}, {300, 3}};
    for (const auto& [slot, value] : wanted) EXPECT_EQ(record[slot], SlotValue(value)) << slot;
    EXPECT_EQ(record[20], SlotValue());
    EXPECT_EQ(record[301], SlotValue(int32_t{1}));

    const SlotRecord plain = EncodeSettings(Settings());
    EXPECT_EQ(plain[2], SlotValue(int32_t{20})) << "an empty White name moves everything down";
    EXPECT_EQ(plain[301], SlotValue());
}

TEST(SettingsRecordTest, AnyNumericTagServesAsANumber) {
    SlotRecord record = EncodeSettings(Settings());
    record[2] = 30.0;
    record[8] = true;          // a check box
    record[11] = SlotValue();  // clock type 0
    Settings read;
    EXPECT_FALSE(DecodeSettings({record, {}}, read));
    EXPECT_EQ(read.Control.PeriodLimit[White], 1800);
    EXPECT_TRUE(read.Control.CountTimeDown);
    EXPECT_EQ(read.ClockType, 0);
    EXPECT_FALSE(read.Control.SecondPeriodEnabled);
    record[300] = SlotValue();
    EXPECT_EQ(DecodeLanguage(record), English);
    record[300] = 3.0;
    EXPECT_EQ(DecodeLanguage(record), French);
}

TEST(SettingsRecordTest, BadSlotsAreNamedAndStopTheReading) {
    struct Row {
        const char* Name;
        int32_t Slot;
        SlotValue Value;
        Damage What;
    };
    const Row rows[] = {
        {"negative name length", 0, int32_t{-1}, Damage::OutOfRange},
        {"name into the language's slot", 0, int32_t{285}, Damage::OutOfRange},
        {"first period of no minute", 2, int32_t{0}, Damage::OutOfRange},
        {"first period too long for seconds", 3, int32_t{Most / 60 + 1}, Damage::Overflow},
        {"negative second period", 4, int32_t{-1}, Damage::OutOfRange},
        {"negative bonus", 7, int32_t{-1}, Damage::OutOfRange},
        {"bonus that is no 32-bit number", 7, 1e10, Damage::Overflow},
        {"bonus that is no number", 7, std::nan(""), Damage::Overflow},
        {"move amount below 1", 13, int32_t{-1}, Damage::OutOfRange},
        {"move amount that cannot grow", 13, Most, Damage::OutOfRange},
        {"button sound", 14, int32_t{5}, Damage::OutOfRange},
        {"flag sound", 15, int32_t{6}, Damage::OutOfRange},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        SlotRecord record = EncodeSettings(Settings());
        record[static_cast<size_t>(row.Slot)] = row.Value;
        Settings read;
        const auto error = DecodeSettings({record, {}}, read);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Slot, row.Slot);
        EXPECT_EQ(error->What, row.What);
    }

    const RecordError cut{Damage::ShortFile, 18};
    Settings readOfCut;
    const auto error = DecodeSettings({EncodeSettings(Unusual()), cut}, readOfCut);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Slot, 18);
    EXPECT_EQ(readOfCut.Control.MoveBonus, Unusual().Control.MoveBonus) << "what was read before it stays";
    EXPECT_EQ(readOfCut.ButtonSoundIndex, 1) << "what comes behind it is as it was";
}

TEST(SettingsRecordTest, NamesThatReachTheLanguageAreRefused) {
    Settings settings;
    settings.PlayerNames = {std::string(200, 'a'), std::string(84, 'b')};
    Settings read;
    EXPECT_FALSE(DecodeSettings({EncodeSettings(settings), {}}, read));
    EXPECT_EQ(read.PlayerNames, settings.PlayerNames);
    settings.PlayerNames[Black] += 'b';
    EXPECT_THROW(EncodeSettings(settings), RunTimeError);
}
