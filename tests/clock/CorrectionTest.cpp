#include "clock/Correction.h"

#include "tests/base/Rows.h"

#include <cstdio>

namespace {

// "30,40@2,1 up limit=60 bonus=5" => the first fault, with its side; else the log's text and what the sides have earned
// ("due") or may still earn ("armed"). Both have 2 moves to make in the first period and a second one, and have begun
// move 2 and 1.
std::string Corrected(const std::string& text) {
    modClock::ClockState state;
    state.Control = {{60, 60}, {30, 30}, {0, 0}, true, true, 2};
    state.MoveCount = {2, 1};
    state.SecondPeriodArmed = {true, true};
    Correction wanted;
    for (const std::string& word : Words(text)) {
        if (word == "up") state.Control.CountTimeDown = false;
        if (word == "one-period") state.Control.SecondPeriodEnabled = false;
        if (word == "due") state.SecondPeriodDue = {true, true};
        if (word.starts_with("second=")) state.Control.SecondPeriodTime.fill(std::stoi(word.substr(7)));
        if (word == "given") state.SecondPeriodArmed = {false, false};
        if (word.starts_with("bonus=")) state.Control.MoveBonus.fill(std::stoi(word.substr(6)));
        std::sscanf(word.c_str(), "%d,%d@%d,%d", &wanted.Time[White], &wanted.Time[Black], &wanted.MoveCount[White],
                    &wanted.MoveCount[Black]);
    }
    if (const auto fault = FaultOf(wanted, state))
        return std::array{"no time", "no move", "out of step"}.at(static_cast<size_t>(fault->What)) +
               std::string(fault->Where == White ? " W" : " B");
    Apply(wanted, state);
    std::string after = TextOf(CorrectionOf(state)) + (state.TurnFlag ? " W" : " B");
    for (Side side : BothSides)
        after += state.SecondPeriodDue[side] ? " due" : state.SecondPeriodArmed[side] ? " armed" : " -";
    return after;
}

}  // namespace

TEST(CorrectionTest, FaultsAndWhatFollows) {
    ExpectRows(Corrected, R"(
        30,3661@2,1 => 00:00:30 2.  01:01:01 1. W armed armed | 1,1@2,2 => 00:00:01 2.  00:00:01 2. B armed due
        0,1@2,1 => no time W | 1,0@2,1 => no time B | 1,1@0,0 => no move W | 1,1@1,-1 => no move B
        1,1@3,1 => out of step B | 1,1@1,2 => out of step B
        A clock that counts up shows the time used, and counts the bonus too.
        0,60@2,1 up => 00:00:00 2.  00:01:00 1. W armed armed | 61,0@2,1 up => no time W | 0,-1@2,1 up => no time B
        55,55@2,1 up bonus=5 => 00:00:55 2.  00:00:55 1. W armed armed | 56,0@2,1 up bonus=5 => no time W
        The end of the first period.
        9,9@3,2 => 00:00:09 3.  00:00:09 2. W due due | 9,9@2,2 => 00:00:09 2.  00:00:09 2. B armed due
        9,9@99999,99999 => 00:00:09 99999.  00:00:09 99999. B due due | 9,9@100000,99999 => no move W
        90,0@2,1 up due => 00:01:30 2.  00:00:00 1. W due due | 91,0@2,1 up due => no time W
        9,9@3,3 => 00:00:09 3.  00:00:09 3. B due due
        9,9@3,3 one-period => 00:00:09 3.  00:00:09 3. B armed armed | 9,9@3,3 second=0 => 00:00:09 3.  00:00:09 3. B armed armed
        9,9@3,3 second=1 => 00:00:09 3.  00:00:09 3. B due due | 9,9@3,3 given => 00:00:09 3.  00:00:09 3. B due due
    )");
}
