#include "recorder/RecordHistory.h"

#include "tests/recorder/RecordText.h"

namespace {

struct Kept {
    Recorder Record;
    RecordHistory History;
    ChosenLines Chosen;  // after each change, the last lines
    Kept() { History.Begin(Record); }

    // "back", "redo", and the words of Do.
    void Say(const std::string& word) {
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
std::string State(const std::string& script) {
    Kept kept;
    for (const std::string& word : Words(script)) kept.Say(word);
    std::string text = ListText(kept.Record.Lists()) + "; " +
                       Shortened(kept.Record.RunningText() + "<" + kept.Record.PendingText() + ">") +
                       (kept.Record.SideToMove() == White ? " White" : " Black");
    if (kept.Chosen[White]) text += " " + std::to_string(*kept.Chosen[White]) + std::to_string(*kept.Chosen[Black]);
    return text + (kept.History.CanTakeBack() ? " back" : "") + (kept.History.CanRedo() ? " redo" : "");
}

}  // namespace

TEST(RecordHistoryTest, WhatTheClockHasAddedStaysAndANewStepEndsRedo) {
    ExpectRows(State, R"(
        => / ; <> White | e2e4 back => / ; <> White redo | e2e4 back redo => 1. e4 / ; <1. e4 > Black 10 back
        e2e4 e7e5 back back redo => 1. e4 / ; <1. e4 > Black 10 back redo
        e2e4 e7e5 back c7c5 => 1. e4 / c5; 1. e4 <c5 > White 11 back
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
