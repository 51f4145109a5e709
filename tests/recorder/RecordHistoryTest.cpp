#include "recorder/RecordHistory.h"

#include "tests/recorder/RecordText.h"

namespace {

struct Kept {
    Recorder Record;
    RecordHistory History;
    ChosenLines Chosen;  // after each change, the last lines
    Kept() { History.Begin(Record); }

    // "back", "redo", "load" for being saved and loaded, and the words of Do.
    void Say(const std::string& word) {
        if (word == "load") {
            const Recorder saved = Record;
            Record.Restore(saved.Position(), saved.Lists(), saved.SideToMove(), std::nullopt);
            return History.Begin(Record);
        }
        if (word == "back") return void(Chosen = History.TakeBack(Record, Chosen));
        if (word == "redo") return void(Chosen = History.Redo(Record, Chosen));
        Do(Record, word);
        const Side side = word.back() == 'B' ? Black : White;
        const bool press = word == "first" || word.starts_with("press");
        ClockAdditions added;
        if (press) added.Lines[side] = Record.List(side).Moves();
        if (word.starts_with("flag")) added.Fallen = side;
        if (press || added.Fallen)
            History.ClockAdded(Record, added);
        else
            History.Changed(Record, Chosen);
        for (const Side list : BothSides) Chosen[list] = Record.List(list).Entries().size();
    }
};

// The lists, the text, the side to move, the lengths of the lists when the lines were chosen, and what can be done.
std::string HistoryOf(const std::string& script) {
    Kept kept;
    for (const std::string& word : Words(script)) kept.Say(word);
    std::string text = ListText(kept.Record.Lists()) + "; " +
                       Shortened(kept.Record.RunningText() + "<" + kept.Record.PendingText() + ">") +
                       (kept.Record.SideToMove() == White ? " White" : " Black");
    if (kept.Chosen[White]) text += " " + std::to_string(*kept.Chosen[White]) + std::to_string(*kept.Chosen[Black]);
    return text + (kept.History.CanTakeBack() ? " back" : "") + (kept.History.CanRedo() ? " redo" : "");
}

// The squares that differ from the initial position after an entry, which is the last word, the captured pieces, and
// how the move went.
std::string After(const std::string& script) {
    Kept kept;
    std::vector<std::string> words = Words(script);
    const std::string entry = words.back();
    words.pop_back();
    for (const std::string& word : words) kept.Say(word);
    const auto found = kept.History.PositionAfter({entry[0] == 'W' ? White : Black, std::stoul(entry.substr(1))});
    if (!found) return "?";
    std::string text;
    for (int index = 11; index <= 88; ++index) {
        const Piece piece = found->Pieces.At(Square{index});
        if (piece == Board().At(Square{index})) continue;
        text += (piece == Piece::Empty ? "--" : std::string(PieceCode(piece))) + FileLetter(Square{index}) +
                RankDigit(Square{index}) + " ";
    }
    return text + TrayText(found->Pieces) +
           (found->LastMove ? "; " + std::string(WriteLongForm(*found->LastMove).View()) : "");
}

}  // namespace

TEST(RecordHistoryTest, ThePositionAfterAnEntryIsKnown) {
    ExpectRows(After, R"(
        e2e4 e7e5 g1f3 W0 => --e2 WPe4 ; e2-e4 | e2e4 d7d5 e4d5 d8d5 W1 => WPd5 --d7 --e2 BP0; e4xd5
        e2e4 e7e5 g1f3 B0 => --e2 WPe4 BPe5 --e7 ; e7-e5 | e2e4 e7e5 B1 => ? | W0 => ?
        What came before the next move belongs to it: a promotion, a piece put back; what was taken back or deleted does not.
        a2a4 b7b5 a4b5 c7c6 b5b8 =R h7h6 W2 => --a2 --b7 WRb8 BPc6 --c7 BN0 BP0; b5xb8
        e2e4 e7e5 back c7c5 g1f3 B0 => BPc5 --c7 --e2 WPe4 ; c7-c5 | e2e4 e7e5 deleteB c7c5 d2d4 W0 => --e2 WPe4 ; e2-e4
        An edit changes no position; an entry that was written by one has none, whatever its line was before.
        e2e4 e7e5 W0=d4 W0 => --e2 WPe4 ; e2-e4 | e2e4 e7e5 deleteB g1f3 B0=c5 B0 => ?
        Of a game that was loaded it is found while the lists tell one, also after moves that no game has.
        e2e4 e7e5 g1f3 load W0 => --e2 WPe4 ; e2-e4 | e2e4 e7e5 load g1f3 b8c6 B0 => --e2 WPe4 BPe5 --e7
        e2e4 e7e5 load g1g5 W0 => --e2 WPe4 ; e2-e4 | e2e4 d7d5 e4d5 load g8f6 W1 => WPd5 --d7 --e2 BP0
        e2e4 e7e5 e1e3 load B0 => --e2 WPe4 BPe5 --e7 ; e7-e5 | e2e5 e7e6 g1f3 load W0 => ? | e2e4 e7e5 g1f3 load W1 => --e2 WPe4 BPe5 --e7 WNf3 --g1
    )");
}

TEST(RecordHistoryTest, WhatTheClockHasAddedStaysAndANewStepEndsRedo) {
    ExpectRows(HistoryOf, R"(
        => / ; <> White | e2e4 back => / ; <> White redo | e2e4 back redo => 1. e4 / ; <1. e4 > Black 10 back
        e2e4 e7e5 back back redo => 1. e4 / ; <1. e4 > Black 10 back redo
        e2e4 e7e5 back c7c5 => 1. e4 / c5; 1. e4 <c5 > White 11 back | e2e4 e7e5 back load => 1. e4 / ; <1. e4 > Black 10
        What changes nothing is no step.
        e2e4 =Q deleteB W0=e4 => 1. e4 / ; <1. e4 > Black 10 back | check mate deleteW =>  / ; <> White 00
        e2e4 check check back back =>  / ; <> White redo
        Presses.
        first e2e4 pressB back => 1. _ / 1. _; <> White 10 redo | first e2e4 pressB back redo => 1. e4 / 1. _; <1. e4 > Black 11 back
        first e2e4 pressB e7e5 pressW back back => 1. _|2. _ / 1. _; <> White 10 redo
        first e2e4 pressB e7e5 pressW back back d2d4 d7d5 => 1. d4|2. _ / d5; 1. d4 <d5 > White 21 back
        first e2e4 pressB e7e5 pressW back back redo redo => 1. e4|2. _ / e5; 1. e4 <e5 > White 21 back
        e2e4 e7e5 back pressB redo back back => / 1. _; <> White redo
        e2e4 e7e5 back pressB redo g1f3 back => 1. e4 / e5; 1. e4 <e5 > White 11 back redo
        first e2e4 pressB deleteB c2c4 back back => 1. e4 / 1. _; <1. e4 > Black 11 back redo
        A flag.
        e2e4 flagB back => [1-0] / ; 1-0<> White redo | e2e4 flagB back redo => 1. e4 / [1-0]; 1. e4 1-0<> Black 11 back
        e2e4 back flagW redo => 1. e4 / [0-1]; 1. e4 0-1<> Black 10 back | flagW deleteW back => [0-1] / ; 0-1<> White 10 redo
        flagW e2e4 back => [0-1] / ; 0-1<> White 10 redo | e2e4 flagB back d2d4 => 1. d4|[1-0] / ; 1. d4 1-0<> Black 20 back
    )");
}

TEST(RecordHistoryTest, EveryStateComesBackWhole) {
    Kept kept;
    std::vector<Recorder> states{kept.Record};
    for (const std::string& word : Words("e2e4 d7d5 e4d5 d8d5 BP0@e5 check W0=d4 B1= deleteW top4,4 a2a4 draw a7a6 "
                                         "a4b8 =N =Q top9,9 mate W0=e3 "
                                         "B8=Nf6 h2h4 deleteB h4g8 =R W0=1-0 e1e2")) {
        kept.Say(word);
        EXPECT_FALSE(kept.Record == states.back()) << word;
        states.push_back(kept.Record);
    }
    for (int times = 0; times < 2; ++times) {
        for (size_t left = states.size() - 1; left-- > 0;) {
            kept.Say("back");
            EXPECT_TRUE(kept.Record == states[left]) << left;
        }
        EXPECT_FALSE(kept.History.CanTakeBack());
        for (size_t next = 1; next < states.size(); ++next) {
            kept.Say("redo");
            EXPECT_TRUE(kept.Record == states[next]) << next;
        }
        EXPECT_FALSE(kept.History.CanRedo());
    }
}
