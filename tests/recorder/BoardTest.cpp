#include "recorder/Board.h"

#include "tests/recorder/RecordText.h"

namespace {

// The board after the move that the last four characters say.
std::string AfterMove(const std::string& given) {
    const size_t move = given.size() - 4;
    Board board = Position(given.substr(0, move));
    board.Carry(board.Classify(SquareNamed(given.substr(move, 2)), SquareNamed(given.substr(move + 2))));
    return BoardText(board);
}

}  // namespace

TEST(BoardTest, WhatAMoveDoesIsToldByTheSquaresAlone) {
    ExpectRows(AfterMove, R"(
        WPe2 e2e4 => WPe4 | WPe4 WPd5 e4d5 => WPd5 WP0 | WPe5 BPd5 e5d6 => WPd6 BP0 | BPe4 WPf4 e4f3 => BPf3 WP0
        WPe5 WPd5 e5d6 => WPd5 WPd6 | WPe4 BPd4 e4d5 => BPd4 WPd5 | WPe4 BPd4 e4d3 => WPd3 BPd4
        WPe5 BPd5 e5d7 => BPd5 WPd7 | WPe5 BPc5 e5c6 => BPc5 WPc6 | WPe5 BPd5 e5e6 => BPd5 WPe6
        WPe5 BNd5 e5d6 => BNd5 WPd6 | WNe5 BPd5 e5d6 => BPd5 WNd6 | WPe5 BPd5 BNd6 e5d6 => BPd5 WPd6 BN0
        WKe1 WRh1 e1g1 => WRf1 WKg1 | WKe1 WRa1 e1c1 => WKc1 WRd1 | BKe8 BRh8 e8g8 => BRf8 BKg8
        BKe8 BRa8 e8c8 => BKc8 BRd8 | WKe1 WRh1 WBf1 e1g1 => WBf1 WKg1 WRh1 | WKe1 WRa1 WQd1 e1c1 => WRa1 WKc1 WQd1
        WKe1 WRa1 WNb1 e1c1 => WRa1 WNb1 WKc1 | WKe1 WRh1 BNg1 e1g1 => WKg1 WRh1 BN0
        WKe1 BRh1 BRa1 e1g1 => BRa1 WKg1 BRh1 | WKe1 e1c1 => WKc1 | WKd1 WRh1 d1g1 => WKg1 WRh1
        WKe1 WRh1 WRa1 e1f1 => WRa1 WKf1 WRh1 | WKe8 WRh8 e8g8 => WKg8 WRh8 | WQe1 WRh1 e1g1 => WQg1 WRh1
    )");
}

TEST(BoardTest, TraysShowTheFirstHiddenSlotAndNoMoreThanTheyHave) {
    Board board = Position("");
    const auto capture = [&](int times, const char* code) {
        for (int i = 0; i < times; ++i) board.AddCaptured(*PieceOfCode(code));
        return TrayText(board);
    };
    EXPECT_EQ(capture(3, "WR"), "WR0 WR1");
    board.HideCaptured(*PieceOfCode("WR"), 0);
    EXPECT_EQ(TrayText(board), "WR1");
    EXPECT_EQ(capture(1, "WR"), "WR0 WR1");
    EXPECT_EQ(capture(2, "BQ"), "WR0 WR1 BQ0");
    EXPECT_EQ(capture(1, "BK"), "WR0 WR1 BQ0");
    EXPECT_EQ(capture(9, "WP"), "WR0 WR1 WP0 WP1 WP2 WP3 WP4 WP5 WP6 WP7 BQ0");
    board.Reset();
    EXPECT_EQ(BoardText(board),
              "WRa1 WPa2 BPa7 BRa8 WNb1 WPb2 BPb7 BNb8 WBc1 WPc2 BPc7 BBc8 WQd1 WPd2 BPd7 BQd8 "
              "WKe1 WPe2 BPe7 BKe8 WBf1 WPf2 BPf7 BBf8 WNg1 WPg2 BPg7 BNg8 WRh1 WPh2 BPh7 BRh8 ");
    EXPECT_EQ(SlotOf(2 * SlotsPerSide - 1), (TraySlot{*PieceOfCode("BP"), 7}));

    // In a loaded game they show what is missing: a promoted pawn does, and no kind lacks less than none.
    board = Position("WKe1 WQd1 WQd8 WQa8 WNb1 WNc1 WNe2 WPa2 WPb2 BKe8");
    board.AddCaptured(*PieceOfCode("WQ"));
    Recorder loaded;
    loaded.Restore(board, {}, White, std::nullopt);
    EXPECT_EQ(TrayText(loaded.Position()),
              "WR0 WR1 WB0 WB1 WP0 WP1 WP2 WP3 WP4 WP5 "
              "BQ0 BR0 BR1 BB0 BB1 BN0 BN1 BP0 BP1 BP2 BP3 BP4 BP5 BP6 BP7");
}
