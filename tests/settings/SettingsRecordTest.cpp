#include "settings/SettingsRecord.h"

#include "base/RunTimeError.h"
#include "tests/base/DamageText.h"
#include "tests/settings/SettingsText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

Settings Unusual() {
    Settings settings;
    settings.PlayerNames = {"An\xF1", "B"};
    settings.Control = {{60, 10800}, {0, 600}, {3599, 7}, false, true, 1};
    settings.TurnClock = settings.WritePgn = true;
    settings.ShowMoveNumber = settings.OpenScorletAtStart = false;
    settings.ClockType = 2;
    settings.SetButtonSound(4);
    settings.SetFlagSound(5);
    settings.LanguageIndex = French;
    return settings;
}

// What becomes of the DEFAULT settings by a record of the unusual ones with a slot changed.
std::string Read(size_t slot, const SlotValue& value, std::optional<RecordError> cut = {}) {
    SlotRecord record = EncodeSettings(Unusual());
    record[slot] = value;
    Settings read;
    const auto error = DecodeSettings({record, cut}, read);
    read.LanguageIndex = DecodeLanguage(record);
    return (error ? DamageText(error->What, error->Slot) + ": " : "") + SettingsText(read);
}

constexpr int32_t Most = std::numeric_limits<int32_t>::max();

}  // namespace

TEST(SettingsRecordTest, FieldsFollowTheNames) {
    std::string gap;
    for (int slot = 20; slot < 300; ++slot) gap += "- ";
    EXPECT_EQ(SlotText(EncodeSettings(Unusual())),
              "3 65 110 241 1 66 1 180 0 10 3599 7 0 1 0 2 0 0 4 5 " + gap + "3 1 ");
    Settings names;
    names.PlayerNames = {std::string(200, 'a'), std::string(84, 'b')};
    Settings read;
    EXPECT_FALSE(DecodeSettings({EncodeSettings(names), {}}, read));
    EXPECT_EQ(SettingsText(read), SettingsText(names));
    names.PlayerNames[Black] += 'b';
    EXPECT_THROW(EncodeSettings(names), RunTimeError) << "they would reach the language";
    EXPECT_THROW(names.SetButtonSound(-1), RunTimeError);
    EXPECT_THROW(names.SetButtonSound(5), RunTimeError);
    EXPECT_THROW(names.SetFlagSound(6), RunTimeError);
    EXPECT_EQ(SettingsText(Settings()),
              "| 1200,1200 1200,1200 0,0 down second number open 1:40 BUTTONPUSHED PIECEMOVED 2");
}

TEST(SettingsRecordTest, SlotsAreReadOrNamedAsBad) {
    struct Row {
        const char* Name;
        size_t Slot;
        SlotValue Value;
        const char* Read;  // what differs from the unusual settings
    };
    const std::string start = "An\xF1|B ", rest = " TRAK TADA 3";
    const Row rows[] = {
        {"as written", 19, 5, "60,10800 0,600 3599,7 second turn pgn 2:1 TRAK TADA 3"},
        {"a real number, rounded", 10, 30.5, "60,10800 0,600 30,7 second turn pgn 2:1 TRAK TADA 3"},
        {"real minutes", 8, 0.5, "60,10800 30,600 3599,7 second turn pgn 2:1 TRAK TADA 3"},
        {"a boolean in a check box", 14, true, "60,10800 0,600 3599,7 second turn number pgn 2:1 TRAK TADA 3"},
        {"down", 12, 1, "60,10800 0,600 3599,7 down second turn pgn 2:1 TRAK TADA 3"},
        {"an empty type", 15, {}, "60,10800 0,600 3599,7 turn pgn 0:1 TRAK TADA 3"},
        {"an unknown type", 15, 7, "60,10800 0,600 3599,7 second turn pgn 7:1 TRAK TADA 3"},
        {"open", 16, 1, "60,10800 0,600 3599,7 second turn open pgn 2:1 TRAK TADA 3"},
        {"the highest move amount", 17, Most - 2, "60,10800 0,600 3599,7 second turn pgn 2:2147483646 TRAK TADA 3"},
        {"no sound", 18, 0, "60,10800 0,600 3599,7 second turn pgn 2:1 NOSOUND TADA 3"},
        {"no PGN", 301, {}, "60,10800 0,600 3599,7 second turn 2:1 TRAK TADA 3"},
        {"no language", 300, {}, "60,10800 0,600 3599,7 second turn pgn 2:1 TRAK TADA 2"},
        {"a real language", 300, 1.0, "60,10800 0,600 3599,7 second turn pgn 2:1 TRAK TADA 1"},
        {"a language past 32 bits", 300, 1e10, "60,10800 0,600 3599,7 second turn pgn 2:1 TRAK TADA 2"},
    };
    for (const Row& row : rows) EXPECT_EQ(Read(row.Slot, row.Value), start + row.Read) << row.Name;

    // What comes before the bad slot is taken, what comes after it is as it was.
    const std::string untouched = " 1200,1200 0,0 down second number open 1:40 BUTTONPUSHED PIECEMOVED 3";
    const std::string fields = "An\xF1|B 60,10800 0,600 3599,7 second turn", end = " BUTTONPUSHED PIECEMOVED 3";
    struct Bad {
        size_t Slot;
        SlotValue Value;
        std::string Read;
    };
    const Bad bad[] = {
        {0, -1, "OutOfRange 0: | 1200,1200" + untouched},
        {0, 285, "OutOfRange 0: | 1200,1200" + untouched},
        {1, 256, "OutOfRange 1: | 1200,1200" + untouched},
        {1, -1, "OutOfRange 1: | 1200,1200" + untouched},
        {4, 282, "OutOfRange 4: An\xF1| 1200,1200" + untouched},
        {6, 0, "OutOfRange 6: An\xF1|B 1200,1200" + untouched},
        {7, Most / 60 + 1, "Overflow 7: An\xF1|B 60,1200" + untouched},
        {8, -1, "OutOfRange 8: An\xF1|B 60,10800 1200,1200 0,0 down second number open 1:40" + end},
        {11, -1, "OutOfRange 11: An\xF1|B 60,10800 0,600 3599,0 down second number open 1:40" + end},
        {11, 1e10, "Overflow 11: An\xF1|B 60,10800 0,600 3599,0 down second number open 1:40" + end},
        {11, -1e10, "Overflow 11: An\xF1|B 60,10800 0,600 3599,0 down second number open 1:40" + end},
        {11, std::nan(""), "Overflow 11: An\xF1|B 60,10800 0,600 3599,0 down second number open 1:40" + end},
        {17, -1, "OutOfRange 17: " + fields + " 2:40" + end},
        {17, Most - 1, "OutOfRange 17: " + fields + " 2:40" + end},
        {18, 5, "OutOfRange 18: " + fields + " 2:1" + end},
        {19, 6, "OutOfRange 19: " + fields + " 2:1 TRAK PIECEMOVED 3"},
        {301, 1e10, "Overflow 301: " + fields + " 2:1 TRAK TADA 3"},
    };
    for (const Bad& row : bad) EXPECT_EQ(Read(row.Slot, row.Value), row.Read);
    EXPECT_EQ(Read(19, 5, RecordError{Damage::ShortFile, 18}), "ShortFile 18: " + fields + " 2:1" + end);
    EXPECT_EQ(Read(19, 5, RecordError{Damage::ShortFile, 900}), "ShortFile 900: " + fields + " pgn 2:1 TRAK TADA 3");
}
