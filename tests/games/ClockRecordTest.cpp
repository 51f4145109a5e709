#include "games/ClockRecord.h"

#include "settings/SlotRecord.h"

#include <gtest/gtest.h>

namespace {

std::span<const uint8_t> Bytes(const std::string& text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

// A game of two plies under way, with a value of its own in every field that may have one.
ClockRecord UnderWay() {
    ClockRecord saved;
    saved.Options.PlayerNames = {"A\xF1", ""};
    saved.Options.TurnClock = true;
    saved.Options.ShowMoveNumber = false;
    saved.Options.SetClockType(2);
    saved.Options.SetButtonSound(3);
    saved.Options.SetFlagSound(5);
    saved.Options.WritePgn = true;
    saved.Clock.Control.PeriodLimit = {90, 1200};
    saved.Clock.Control.SecondPeriodTime = {0, 61};
    saved.Clock.Control.MoveBonus = {7, 0};
    saved.Clock.Control.CountTimeDown = true;
    saved.Clock.Control.SecondPeriodEnabled = true;
    saved.Clock.Control.MovesFirstPeriod = 30;
    saved.Clock.PlayerTime = {59, 1000};
    saved.Clock.SecondPeriodDue = {false, true};
    saved.Clock.SecondPeriodArmed = {true, false};
    saved.Clock.MoveCount = {2, 1};
    saved.Clock.TurnFlag = true;
    saved.Clock.GameStarted = true;
    saved.SideToMove = Black;
    saved.ScorletLoaded = true;
    return saved;
}

constexpr size_t Base = 4;  // the first slot behind the names of UnderWay

SlotRecord RecordOf(const ClockRecord& saved) { return DecodeRecord(Bytes(EncodeClockRecord(saved))).Slots; }

std::optional<GameFileError> Read(const SlotRecord& record, ClockRecord& saved) {
    return DecodeClockRecord(Bytes(EncodeRecord(record)), Settings(), saved);
}

}  // namespace

TEST(ClockRecordTest, SlotsHaveTheirTypesAndValues) {
    const std::vector<SlotValue> wanted{int32_t{2},  65.0,          double{0xF1}, int32_t{0},  // the names
                                        1.5,         20.0,          0.0,          61 / 60.0,   // minutes
                                        int32_t{7},  int32_t{0},                               // bonus
                                        true,        true,          false,                     // options
                                        int32_t{2},  true,          int32_t{29},          // type, Scorlet, move amount
                                        int32_t{3},  int32_t{5},                          // sounds
                                        int32_t{59}, int32_t{1000}, false,        true,   // times, second period due
                                        int32_t{2},  int32_t{1},    false,        true,   // counts, Scorlet's options
                                        true,        true,          true,         false,  // turn, under way, armed
                                        true};                                            // the Scorlet was loaded
    const SlotRecord record = RecordOf(UnderWay());
    for (size_t slot = 0; slot < record.size(); ++slot)
        EXPECT_EQ(record[slot], slot < wanted.size() ? wanted[slot] : SlotValue()) << slot;
}

TEST(ClockRecordTest, RoundTripKeepsEverythingAndTheLanguageInUse) {
    Settings present;
    present.LanguageIndex = French;
    ClockRecord read;
    const std::string bytes = EncodeClockRecord(UnderWay());
    ASSERT_FALSE(DecodeClockRecord(Bytes(bytes), present, read));
    EXPECT_EQ(EncodeClockRecord(read), bytes);
    EXPECT_EQ(read.Options.Control.PeriodLimit, (std::array{90, 1200})) << "settings and clock agree";
    EXPECT_EQ(read.Options.LanguageIndex, French);

    // Every second comes back, whatever its minutes are as a fraction.
    ClockRecord saved;
    for (int32_t seconds = 60; seconds < 20000; seconds += 7) {
        saved.Clock.Control.PeriodLimit.fill(seconds);
        ASSERT_FALSE(DecodeClockRecord(Bytes(EncodeClockRecord(saved)), present, read));
        ASSERT_EQ(read.Clock.Control.PeriodLimit[Black], seconds);
    }
}

TEST(ClockRecordTest, LongNamesAreCut) {
    ClockRecord saved = UnderWay();
    saved.Options.PlayerNames = {std::string(200, 'a'), std::string(128, 'b')};
    ClockRecord read;
    ASSERT_FALSE(Read(RecordOf(saved), read));
    EXPECT_EQ(read.Options.PlayerNames, (std::array{std::string(128, 'a'), std::string(128, 'b')}));
}

TEST(ClockRecordTest, ProgressFollowsFromTheRestInAnEarlierForm) {
    struct Row {
        const char* Name;
        std::array<int32_t, 2> Counts;
        int32_t RunningTime;
        bool Started, TurnFlag;
    };
    for (const Row& row : {Row{"never started", {0, 0}, 0, false, false}, Row{"White runs", {1, 0}, 60, true, true},
                           Row{"Black runs", {1, 1}, 60, true, false}, Row{"flag fallen", {3, 2}, 0, false, false}}) {
        SCOPED_TRACE(row.Name);
        ClockRecord saved = UnderWay();
        saved.Clock.MoveCount = row.Counts;
        saved.Clock.PlayerTime[saved.Clock.SideByCounts()] = row.RunningTime;
        SlotRecord record = RecordOf(saved);
        for (size_t slot = Base + 22; slot <= Base + 26; ++slot) record[slot] = SlotValue();
        ClockRecord read;
        ASSERT_FALSE(Read(record, read));
        EXPECT_EQ(read.Clock.GameStarted, row.Started);
        EXPECT_EQ(read.Clock.TurnFlag, row.TurnFlag);
        EXPECT_TRUE(read.Clock.SecondPeriodArmed[White]);
        EXPECT_FALSE(read.Clock.SecondPeriodArmed[Black]) << "it is due";
        EXPECT_TRUE(read.ScorletLoaded);
    }
}

TEST(ClockRecordTest, DamageIsNamedWithItsSlot) {
    struct Row {
        const char* Name;
        size_t Field;
        SlotValue Value;
        Damage What;
        size_t Named = 0;  // where another slot than the field is to blame
    };
    const Row rows[] = {
        {"name too long", 0, int32_t{129}, Damage::OutOfRange},
        {"name without end", 3, int32_t{5000}, Damage::OutOfRange},
        {"no character", 1, 256.0, Damage::OutOfRange},
        {"first period under a minute", Base, 59 / 60.0, Damage::OutOfRange},
        {"time that is no number", Base + 1, std::numeric_limits<double>::quiet_NaN(), Damage::Overflow},
        {"time past 32 bits", Base + 2, 1e9, Damage::Overflow},
        {"negative second period", Base + 3, -1.0, Damage::OutOfRange},
        {"negative bonus", Base + 4, int32_t{-1}, Damage::OutOfRange},
        {"move amount below 1", Base + 11, int32_t{-1}, Damage::OutOfRange},
        {"button sound", Base + 12, int32_t{5}, Damage::OutOfRange},
        {"flag sound", Base + 13, int32_t{6}, Damage::OutOfRange},
        {"negative time", Base + 15, int32_t{-1}, Damage::OutOfRange},
        {"running side without time", Base + 14, int32_t{0}, Damage::NoTimeLeft},
        {"negative count", Base + 18, int32_t{-1}, Damage::OutOfRange},
        {"more moves than lines", Base + 18, int32_t{MostSavedMoves + 1}, Damage::OutOfRange},
        {"counts out of step", Base + 19, int32_t{3}, Damage::CountsOutOfStep},
        {"turn against the counts", Base + 22, false, Damage::TurnAgainstCounts},
        {"turn against equal counts", Base + 19, int32_t{2}, Damage::TurnAgainstCounts, Base + 22},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        SlotRecord record = RecordOf(UnderWay());
        record[row.Field] = row.Value;
        ClockRecord read;
        const auto error = Read(record, read);
        const auto slot = static_cast<int32_t>(row.Named > 0 ? row.Named : row.Field);
        EXPECT_EQ(error, (GameFileError{ClockFile, row.What, slot}));
        EXPECT_EQ(read.Options.TurnClock, false) << "nothing is taken";
    }

    ClockRecord read;
    const std::string bytes = EncodeClockRecord(UnderWay());
    EXPECT_EQ(DecodeClockRecord(Bytes(bytes).first(bytes.size() - 1), Settings(), read),
              (GameFileError{ClockFile, Damage::ShortFile, 999}));
    EXPECT_EQ(DecodeClockRecord(Bytes("PK\3\4"), Settings(), read), (GameFileError{ClockFile, Damage::UnknownTag, 0}));
}

TEST(ClockRecordTest, CountingUpTheTimeUsedMayPassTheLimitByABonusOnly) {
    ClockRecord saved = UnderWay(), read;
    saved.Clock.Control.CountTimeDown = false;
    saved.Clock.PlayerTime[White] = 95;
    EXPECT_FALSE(Read(RecordOf(saved), read)) << "a bonus was added, and no second has passed since";
    saved.Clock.Control.MoveBonus[White] = 0;
    saved.Clock.Control.SecondPeriodTime[White] = 60;
    EXPECT_EQ(Read(RecordOf(saved), read)->What, Damage::NoTimeLeft);
    saved.Clock.SecondPeriodDue[White] = true;
    EXPECT_FALSE(Read(RecordOf(saved), read)) << "the second period has been earned";
}

TEST(ClockRecordTest, TheTailOfALongerFileStays) {
    EXPECT_EQ(WithOldTail("abc", "12345"), "abc45");
    EXPECT_EQ(WithOldTail("abc", "12"), "abc");
    const std::string bytes = EncodeClockRecord(UnderWay());
    ClockRecord read;
    EXPECT_FALSE(DecodeClockRecord(Bytes(WithOldTail(bytes, std::string(20000, 'x'))), Settings(), read));
}
