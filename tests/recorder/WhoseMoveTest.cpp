#include "recorder/WhoseMove.h"

#include "tests/recorder/RecordText.h"

namespace {

// "W3: " and a script: what the clock says, "-" for none; then what the record expects, and how that differs.
std::string LineOf(const std::string& row) {
    constexpr std::array kinds{"", " behind", " far", " other colour"};
    const size_t colon = row.find(':');
    std::optional<ClockTurn> clock;
    if (row[0] != '-') clock = ClockTurn{row[0] == 'W' ? White : Black, std::stoi(row.substr(1))};
    const WhoseMove next = WhoseMoveOf(Played(row.substr(colon + 1)), clock);
    return (next.Mover == White ? "W" : "B") + std::to_string(next.Number) + kinds[static_cast<size_t>(next.Kind)] +
           (next.Kind == WhoseMoveKind::FarApart ? " from " + std::to_string(next.ClockNumber) : "");
}

}  // namespace

TEST(WhoseMoveTest, BesideTheClock) {
    ExpectRows(LineOf, R"(
        -: => W1 | -: e2e4 => B1 | -: e2e4 e7e5 => W2 | -: e2e4 e7e5 g1f3 W1= b8c6 => W3 | -: e2e4 e7e5 deleteW => W1
        W1: => W1 | B1: => W1 behind | W2: => W1 far from 2 | W17: => W1 far from 17
        W1: e2e4 => B1 | B1: e2e4 => B1 | W2: e2e4 => B1 behind | W1: e2e4 e7e5 => W2 far from 1
        B1: e2e4 e7e5 => W2 | B2: e2e4 e7e5 => W2 behind | B2147483647: => W1 far from 2147483647
        W3: top3,2 => W1 far from 3 | W3: top3,2 e2e4 e7e5 d2d4 d7d5 => W3 | W1: top1,0 B0=e5 => W1
        W3: go3,2W => W3 | W3: go3,2W e2e4 => B3 | B3: e2e4 go3,3B => B3 | -: e7e5 go3,2W => W3
        A result ends the comparison.
        W1: e2e4 mate => B1 | W5: draw => W1 | W2: e2e4 mate e7e5 => W2
        The piece was of the other colour.
        -: e7e5 => B1 other colour | B1: e7e5 => B1 other colour | -: e7e5 d7d5 => W2 | -: e2e4 d2d4 => W2 other colour
        -: e7e5 reset => W1 | -: e2e4 top1,1 B0=e5 => W2 | -: e7e5 check => B1 other colour
    )");
}
