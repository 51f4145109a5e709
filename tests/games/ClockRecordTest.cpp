#include "games/ClockRecord.h"

#include "tests/settings/SettingsText.h"

namespace {

// A game of two plies under way, with a value of its own in every field that may have one. Its fields begin at slot 4.
ClockRecord UnderWay() {
    ClockRecord saved{Unusual(), modClock::ClockState(), Black, true};
    saved.Options.PlayerNames = {"A\xF1", ""};
    saved.Clock.Control = {{90, 1200}, {0, 61}, {7, 0}, true, true, 30};
    saved.Clock.PlayerTime = {59, 1000};
    saved.Clock.SecondPeriodDue = {false, true};
    saved.Clock.SecondPeriodArmed = {true, false};
    saved.Clock.MoveCount = {2, 1};
    saved.Clock.TurnFlag = saved.Clock.GameStarted = true;
    return saved;
}

// The clock's state, and what the Scorlet has where that is not as above.
std::string StateText(const ClockRecord& saved) {
    std::ostringstream text;
    const modClock::ClockState& clock = saved.Clock;
    for (const Side side : BothSides)
        text << clock.PlayerTime[side] << ':' << clock.MoveCount[side] << (clock.SecondPeriodDue[side] ? " due" : "")
             << (clock.SecondPeriodArmed[side] ? " armed, " : ", ");
    text << (clock.TurnFlag ? "White" : "Black") << (clock.GameStarted ? " runs" : "");
    text << (saved.SideToMove == White ? ", White writes" : "") << (saved.ScorletLoaded ? "" : ", no Scorlet");
    return text.str();
}

// What is read of the record with some fields changed, of one in an earlier form ("earlier"), or of one that counts up
// and has one period ("up"): the state, or the damage.
std::string ReadClock(const std::string& given) {
    std::string changes = given;
    if (changes.starts_with("earlier")) changes.replace(0, 7, "white's=- started=- armed0=- armed1=- loaded=-");
    if (const size_t up = changes.find("up"); up != std::string::npos) changes.replace(up, 2, "down=0 type=0");
    const SlotRecord record = Changed(DecodeRecord(Bytes(EncodeClockRecord(UnderWay()))).Slots, changes, 4);
    ClockRecord read, again;
    if (const auto error = DecodeClockRecord(Bytes(EncodeRecord(record)), Settings(), read)) {
        EXPECT_TRUE(error->File == ClockFile && !read.Options.TurnClock) << "nothing is taken";
        return DamageText(error->What, error->Place);
    }
    EXPECT_FALSE(DecodeClockRecord(Bytes(EncodeClockRecord(read)), Settings(), again));
    EXPECT_EQ(EncodeClockRecord(again), EncodeClockRecord(read));
    return StateText(read);
}

}  // namespace

TEST(ClockRecordTest, EverythingComesBackButTheLanguage) {
    const std::string bytes = EncodeClockRecord(UnderWay());
    SlotRecord wanted =
        Changed({}, "0=2 1=65. 2=241. 3=0 4=1.5 5=20. 6=0. 8=7 9=0 13=2 15=29 16=4 17=5 18=59 19=1000 22=2 23=1", 0);
    wanted[7] = 61 / 60.0;
    for (const size_t slot : {10, 11, 21, 25, 26, 27, 28, 30}) wanted[slot] = true;
    for (const size_t slot : {12, 14, 20, 24, 29}) wanted[slot] = false;
    EXPECT_EQ(DecodeRecord(Bytes(bytes)).Slots, wanted);
    const Settings present;
    ClockRecord read;
    ASSERT_FALSE(DecodeClockRecord(Bytes(WithOldTail(bytes, std::string(20000, 'x'))), present, read));
    EXPECT_EQ(EncodeClockRecord(read), bytes);
    EXPECT_EQ(SettingsText(read.Options), "A\xF1/ 90,1200 0,61 7,0 down second turn pgn 2:30 TRAK TADA 2");
    EXPECT_EQ(WithOldTail("abc", "12345") + WithOldTail("abc", "12"), "abc45abc");

    ClockRecord saved = UnderWay();
    saved.Options.PlayerNames = {std::string(200, 'a'), std::string(128, 'b')};
    saved.Options.FullNames = {L"", std::wstring(200, L'\u015E')};
    for (int32_t seconds = 60; seconds < 20000; seconds += 61) {
        saved.Clock.Control.PeriodLimit.fill(seconds);
        ASSERT_FALSE(DecodeClockRecord(Bytes(EncodeClockRecord(saved)), present, read));
        ASSERT_EQ(read.Clock.Control.PeriodLimit[Black], seconds) << "whatever the minutes are as a fraction";
    }
    EXPECT_EQ(read.Options.PlayerNames, (std::array{std::string(128, 'a'), std::string(128, 'b')})) << "cut";
    EXPECT_EQ(read.Options.FullNames, saved.Options.FullNames) << "whole";
    ASSERT_FALSE(DecodeClockRecord(Bytes(bytes), read.Options, read));
    EXPECT_EQ(read.Options.FullNames[Black], L"") << "another game's";

    EXPECT_EQ(DecodeClockRecord(Bytes(bytes).first(bytes.size() - 1), present, read),
              (GameFileError{ClockFile, Damage::ShortFile, 999}));
    EXPECT_EQ(DecodeClockRecord(Bytes("PK\3\4"), present, read), (GameFileError{ClockFile, Damage::UnknownTag, 0}));
}

TEST(ClockRecordTest, StatesAndDamages) {
    ExpectRows(ReadClock, R"(
        => 59:2 armed, 1000:1 due, White runs | white's=0 started=0 => 59:2 armed, 1000:1 due, Black
        writer=1 loaded=0 => 59:2 armed, 1000:1 due, White runs, White writes, no Scorlet
        started=0 => 59:2 armed, 1000:1 due, White | black=2 white's=0 => 59:2 armed, 1000:2 due, Black runs
        white=99999 black=99999 white's=0 => 59:99999 armed, 1000:99999 due, Black runs
        An earlier form: what follows from the rest.
        earlier white=0 black=0 => 59:0 armed, 1000:0 due, Black
        earlier white=1 black=0 => 59:1 armed, 1000:0 due, White runs
        earlier white=1 black=1 => 59:1 armed, 1000:1 due, Black runs
        earlier white=3 black=2 time0=0 => 0:3 armed, 1000:2 due, Black
        earlier white=30 black=30 due1=0 => 59:30 armed, 1000:30, Black runs
        earlier white=30 black=29 due1=0 => 59:30 armed, 1000:29 armed, White runs
        earlier white=31 black=30 due1=0 => 59:31, 1000:30, White runs | earlier type=0 => 59:2, 1000:1 due, White runs
        earlier up time0=83 => 83:2, 1000:1 due, White runs | earlier up time0=84 => 84:2, 1000:1 due, Black
        Counting up, only bonuses or a second period of no time may carry the time past the limit.
        up bonus0=0 time0=90 => 90:2 armed, 1000:1 due, White runs | up bonus0=0 time0=91 => NoTimeLeft 18
        up bonus0=0 time0=92 due0=1 => NoTimeLeft 18 | down=0 bonus0=0 time0=91 => 91:2 armed, 1000:1 due, White runs
        down=0 bonus0=0 time0=92 => NoTimeLeft 18 | down=0 bonus0=0 time0=92 second0=1 => NoTimeLeft 18
        down=0 bonus0=0 time0=92 due0=1 => 92:2 due armed, 1000:1 due, White runs
        up time0=104 => 104:2 armed, 1000:1 due, White runs | up time0=105 => NoTimeLeft 18
        Damages.
        0=129 => OutOfRange 0 | 1=9 => OutOfRange 1 | 3=5000 => OutOfRange 3 | 1=256 => OutOfRange 1 | first0=0.98 => OutOfRange 4
        first1=nan => OutOfRange 5 | second0=99999999. => Overflow 6 | second1=-1. => OutOfRange 7
        bonus0=-1 => OutOfRange 8 | moves=-1 => OutOfRange 15 | time1=-1 => OutOfRange 19 | time0=0 => NoTimeLeft 18
        time1=0 => NoTimeLeft 19 | time1=0 black=2 white's=0 => NoTimeLeft 19 | white=-1 => OutOfRange 22 | white=100000 => TooManyMoves 22
        black=3 => CountsOutOfStep 23 | white's=0 => TurnAgainstCounts 26 | black=2 => TurnAgainstCounts 26
        black=2 started=0 => TurnAgainstCounts 26 | white=0 black=0 white's=0 => TurnAgainstCounts 26
    )");
}
