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
    settings.PeriodLimit = {60, 10800};
    settings.SecondPeriodTime = {0, 600};
    settings.MoveBonus = {3599, 7};
    settings.CountTimeDown = false;
    settings.TurnClock = true;
    settings.ShowMoveNumber = false;
    settings.SetClockType(2);
    settings.OpenScorletAtStart = false;
    settings.MovesFirstPeriod = 1;
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
    EXPECT_EQ(read.PeriodLimit, (std::array{60, 10800}));
    EXPECT_TRUE(read.SecondPeriodEnabled && read.TurnClock && read.WritePgn);
    EXPECT_FALSE(read.CountTimeDown || read.ShowMoveNumber || read.OpenScorletAtStart);
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
    EXPECT_EQ(read.PeriodLimit[White], 1800);
    EXPECT_TRUE(read.CountTimeDown);
    EXPECT_EQ(read.ClockType, 0);
    EXPECT_FALSE(read.SecondPeriodEnabled);
    record[300] = SlotValue();
    EXPECT_EQ(DecodeLanguage(record), English);
    record[300] = 3.0;
    EXPECT_EQ(DecodeLanguage(record), French);
}

TEST(SettingsRecordTest, BadSlotsAreNamedAndStopTheReading) {
    using Rule = RecordError::Rule;
    struct Row {
        const char* name;
        int32_t slot;
        SlotValue value;
        Rule rule;
    };
    const Row rows[] = {
        {"negative name length", 0, int32_t{-1}, Rule::OutOfRange},
        {"name into the language's slot", 0, int32_t{285}, Rule::OutOfRange},
        {"first period of no minute", 2, int32_t{0}, Rule::OutOfRange},
        {"first period too long for seconds", 3, int32_t{Most / 60 + 1}, Rule::Overflow},
        {"negative second period", 4, int32_t{-1}, Rule::OutOfRange},
        {"negative bonus", 7, int32_t{-1}, Rule::OutOfRange},
        {"bonus that is no 32-bit number", 7, 1e10, Rule::Overflow},
        {"bonus that is no number", 7, std::nan(""), Rule::Overflow},
        {"move amount below 1", 13, int32_t{-1}, Rule::OutOfRange},
        {"move amount that cannot grow", 13, Most, Rule::OutOfRange},
        {"button sound", 14, int32_t{5}, Rule::OutOfRange},
        {"flag sound", 15, int32_t{6}, Rule::OutOfRange},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        SlotRecord record = EncodeSettings(Settings());
        record[static_cast<size_t>(row.slot)] = row.value;
        Settings read;
        const auto error = DecodeSettings({record, {}}, read);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->slot, row.slot);
        EXPECT_EQ(error->rule, row.rule);
    }

    const RecordError cut{RecordError::Rule::ShortFile, 18};
    Settings readOfCut;
    const auto error = DecodeSettings({EncodeSettings(Unusual()), cut}, readOfCut);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->slot, 18);
    EXPECT_EQ(readOfCut.MoveBonus, Unusual().MoveBonus) << "what was read before it stays";
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
