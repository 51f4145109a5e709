#include "games/ClockRecord.h"

#include "settings/SlotRecord.h"
#include "tests/base/DamageText.h"
#include "tests/settings/SettingsText.h"

#include <gtest/gtest.h>

namespace {

// A game of two plies under way, with a value of its own in every field that may have one. Its fields begin at slot 4.
ClockRecord UnderWay() {
    ClockRecord saved{Settings(), modClock::ClockState(), Black, true};
    saved.Options.PlayerNames = {"A\xF1", ""};
    saved.Options.TurnClock = saved.Options.WritePgn = true;
    saved.Options.ShowMoveNumber = false;
    saved.Options.SetClockType(2);
    saved.Options.SetButtonSound(3);
    saved.Options.SetFlagSound(5);
    saved.Clock.Control = {{90, 1200}, {0, 61}, {7, 0}, true, true, 30};
    saved.Clock.PlayerTime = {59, 1000};
    saved.Clock.SecondPeriodDue = {false, true};
    saved.Clock.SecondPeriodArmed = {true, false};
    saved.Clock.MoveCount = {2, 1};
    saved.Clock.TurnFlag = saved.Clock.GameStarted = true;
    return saved;
}

std::string StateText(const ClockRecord& saved) {
    std::string text;
    const modClock::ClockState& clock = saved.Clock;
    for (const Side side : BothSides) {
        text += std::to_string(clock.PlayerTime[side]) + ":" + std::to_string(clock.MoveCount[side]);
        text += std::string(clock.SecondPeriodDue[side] ? " due" : "") +
                (clock.SecondPeriodArmed[side] ? " armed, " : ", ");
    }
    text += std::string(clock.TurnFlag ? "White's" : "Black's") + (clock.GameStarted ? " runs" : "");
    return text + (saved.SideToMove == White ? ", W writes" : ", B writes") +
           (saved.ScorletLoaded ? " in the Scorlet" : "");
}

using Changes = std::vector<std::pair<size_t, SlotValue>>;

// What is read of the record with some slots changed: the clock's state, or the damage.
std::string Read(const Changes& changes) {
    SlotRecord record = DecodeRecord(Bytes(EncodeClockRecord(UnderWay()))).Slots;
    for (const auto& [slot, value] : changes) record[slot] = value;
    ClockRecord read;
    if (const auto error = DecodeClockRecord(Bytes(EncodeRecord(record)), Settings(), read)) {
        EXPECT_TRUE(error->File == ClockFile && !read.Options.TurnClock) << "nothing is taken";
        return DamageText(error->What, error->Place);
    }
    const std::string again = EncodeClockRecord(read);
    ClockRecord readAgain;
    EXPECT_FALSE(DecodeClockRecord(Bytes(again), Settings(), readAgain));
    EXPECT_EQ(EncodeClockRecord(readAgain), again);
    return StateText(read);
}

}  // namespace

TEST(ClockRecordTest, EverythingComesBackButTheLanguage) {
    const std::string bytes = EncodeClockRecord(UnderWay());
    EXPECT_EQ(SlotText(DecodeRecord(Bytes(bytes)).Slots),
              "2 65.0000 241.000 0 1.50000 20.0000 0.00000 1.01667 7 0 true true false 2 true 29 3 5 "
              "59 1000 false true 2 1 false true true true true false true ");
    Settings present;
    present.LanguageIndex = French;
    ClockRecord read;
    ASSERT_FALSE(DecodeClockRecord(Bytes(WithOldTail(bytes, std::string(20000, 'x'))), present, read));
    EXPECT_EQ(EncodeClockRecord(read), bytes);
    EXPECT_EQ(SettingsText(read.Options), "A\xF1| 90,1200 0,61 7,0 down second turn open pgn 2:30 TYPEWRITER TADA 3");
    EXPECT_EQ(read.Clock.Control.PeriodLimit, read.Options.Control.PeriodLimit);
    EXPECT_EQ(WithOldTail("abc", "12345"), "abc45");
    EXPECT_EQ(WithOldTail("abc", "12"), "abc");

    ClockRecord saved = UnderWay();
    saved.Options.PlayerNames = {std::string(200, 'a'), std::string(128, 'b')};
    ASSERT_FALSE(DecodeClockRecord(Bytes(EncodeClockRecord(saved)), present, read));
    EXPECT_EQ(read.Options.PlayerNames, (std::array{std::string(128, 'a'), std::string(128, 'b')})) << "cut";
    // Every second comes back, whatever its minutes are as a fraction.
    for (int32_t seconds = 60; seconds < 20000; seconds += 7) {
        saved.Clock.Control.PeriodLimit.fill(seconds);
        ASSERT_FALSE(DecodeClockRecord(Bytes(EncodeClockRecord(saved)), present, read));
        ASSERT_EQ(read.Clock.Control.PeriodLimit[Black], seconds);
    }

    EXPECT_EQ(DecodeClockRecord(Bytes(bytes).first(bytes.size() - 1), present, read),
              (GameFileError{ClockFile, Damage::ShortFile, 999}));
    EXPECT_EQ(DecodeClockRecord(Bytes("PK\3\4"), present, read), (GameFileError{ClockFile, Damage::UnknownTag, 0}));
}

TEST(ClockRecordTest, StatesAndDamages) {
    struct Row {
        const char* Name;
        Changes Changed;
        const char* Read;
    };
    const auto none = SlotValue();
    // The counts, and the last five fields, which an earlier form did not have.
    const auto earlier = [&](int white, int black, Changes others) {
        Changes changes{{22, white}, {23, black}, {26, none}, {27, none}, {28, none}, {29, none}, {30, none}};
        changes.insert(changes.end(), others.begin(), others.end());
        return changes;
    };
    const Row rows[] = {
        {"as written", {}, "59:2 armed, 1000:1 due, White's runs, B writes in the Scorlet"},
        {"stopped", {{26, 0}, {27, 0}}, "59:2 armed, 1000:1 due, Black's, B writes in the Scorlet"},
        {"without the Scorlet", {{24, 1}, {30, 0}}, "59:2 armed, 1000:1 due, White's runs, W writes"},
        {"stopped, White's turn", {{27, 0}}, "59:2 armed, 1000:1 due, White's, B writes in the Scorlet"},
        {"Black runs", {{23, 2}, {26, 0}}, "59:2 armed, 1000:2 due, Black's runs, B writes in the Scorlet"},
        {"the most moves",
         {{22, 99'999}, {23, 99'999}, {26, 0}},
         "59:99999 armed, 1000:99999 due, Black's runs, B writes in the Scorlet"},
        // An earlier form.
        {"never started", earlier(0, 0, {}), "59:0 armed, 1000:0 due, Black's, B writes in the Scorlet"},
        {"White runs", earlier(1, 0, {}), "59:1 armed, 1000:0 due, White's runs, B writes in the Scorlet"},
        {"Black runs", earlier(1, 1, {}), "59:1 armed, 1000:1 due, Black's runs, B writes in the Scorlet"},
        {"flag fallen", earlier(3, 2, {{18, 0}}), "0:3 armed, 1000:2 due, Black's, B writes in the Scorlet"},
        {"White's last armed move", earlier(30, 30, {{21, 0}}),
         "59:30 armed, 1000:30, Black's runs, B writes in the Scorlet"},
        {"Black's last", earlier(30, 29, {{21, 0}}),
         "59:30 armed, 1000:29 armed, White's runs, B writes in the Scorlet"},
        {"past them", earlier(31, 30, {{21, 0}}), "59:31, 1000:30, White's runs, B writes in the Scorlet"},
        {"one period", earlier(1, 0, {{13, 0}, {21, 0}}), "59:1, 1000:0, White's runs, B writes in the Scorlet"},
        // Counting up, only a bonus or a second period of no time may carry the time past the limit.
        {"the limit",
         {{10, 0}, {13, 0}, {8, 0}, {18, 90}},
         "90:2 armed, 1000:1 due, White's runs, B writes in the Scorlet"},
        {"past it", {{10, 0}, {13, 0}, {8, 0}, {18, 91}}, "NoTimeLeft 18"},
        {"by an empty second period",
         {{10, 0}, {8, 0}, {18, 91}},
         "91:2 armed, 1000:1 due, White's runs, B writes in the Scorlet"},
        {"further", {{10, 0}, {8, 0}, {18, 92}}, "NoTimeLeft 18"},
        {"but it is due",
         {{10, 0}, {8, 0}, {18, 92}, {20, 1}},
         "92:2 due armed, 1000:1 due, White's runs, B writes in the Scorlet"},
        {"due and not enabled", {{10, 0}, {13, 0}, {8, 0}, {18, 92}, {20, 1}}, "NoTimeLeft 18"},
        {"by bonuses", {{10, 0}, {13, 0}, {18, 104}}, "104:2 armed, 1000:1 due, White's runs, B writes in the Scorlet"},
        {"further", {{10, 0}, {13, 0}, {18, 105}}, "NoTimeLeft 18"},
        {"earlier, up: a bonus from the flag", earlier(2, 1, {{10, 0}, {13, 0}, {18, 83}}),
         "83:2, 1000:1 due, White's runs, B writes in the Scorlet"},
        {"earlier, up: over", earlier(2, 1, {{10, 0}, {13, 0}, {18, 84}}),
         "84:2, 1000:1 due, Black's, B writes in the Scorlet"},
        // Damages.
        {"name too long", {{0, 129}}, "OutOfRange 0"},
        {"name past the record", {{3, 5000}}, "OutOfRange 3"},
        {"no character", {{1, 256.0}}, "OutOfRange 1"},
        {"first period under a minute", {{4, 59 / 60.0}}, "OutOfRange 4"},
        {"time that is no number", {{5, std::numeric_limits<double>::quiet_NaN()}}, "Overflow 5"},
        {"time past 32 bits", {{6, 1e9}}, "Overflow 6"},
        {"negative second period", {{7, -1.0}}, "OutOfRange 7"},
        {"negative bonus", {{8, -1}}, "OutOfRange 8"},
        {"move amount below 1", {{15, -1}}, "OutOfRange 15"},
        {"negative time", {{19, -1}}, "OutOfRange 19"},
        {"White runs without time", {{18, 0}}, "NoTimeLeft 18"},
        {"Black runs without time", {{19, 0}, {23, 2}, {26, 0}}, "NoTimeLeft 19"},
        {"negative count", {{22, -1}}, "OutOfRange 22"},
        {"more moves than lines", {{22, 100'000}}, "OutOfRange 22"},
        {"counts out of step", {{23, 3}}, "CountsOutOfStep 23"},
        {"turn against the counts", {{26, false}}, "TurnAgainstCounts 26"},
        {"turn against equal counts", {{23, 2}}, "TurnAgainstCounts 26"},
        {"stopped, the same", {{23, 2}, {27, 0}}, "TurnAgainstCounts 26"},
        {"under way without a move", {{22, 0}, {23, 0}, {26, 0}}, "TurnAgainstCounts 26"},
    };
    for (const Row& row : rows) EXPECT_EQ(Read(row.Changed), row.Read) << row.Name;
}
