#include "recorder/Board.h"

#include "tests/recorder/RecordText.h"

#include <gtest/gtest.h>

TEST(BoardTest, WhatAMoveDoesIsToldByTheSquaresAlone) {
    struct Row {
        const char *Name, *Before, *Move, *After;
    };
    const Row rows[] = {
        {"a step", "WPe2", "e2e4", "WPe4 x "},
        {"own piece", "WPe4 WPd5", "e4d5", "WPd5 x WP0"},
        {"en passant White", "WPe5 BPd5", "e5d6", "WPd6 x BP0"},
        {"en passant Black", "BPe4 WPf4", "e4f3", "BPf3 x WP0"},
        {"a pawn of its own beside", "WPe5 WPd5", "e5d6", "WPd5 WPd6 x "},
        {"wrong rank", "WPe4 BPd4", "e4d5", "BPd4 WPd5 x "},
        {"Black's rank", "WPe4 BPd4", "e4d3", "WPd3 BPd4 x "},
        {"to another rank", "WPe5 BPd5", "e5d7", "BPd5 WPd7 x "},
        {"two files away", "WPe5 BPc5", "e5c6", "BPc5 WPc6 x "},
        {"straight ahead", "WPe5 BPd5", "e5e6", "BPd5 WPe6 x "},
        {"no pawn beside", "WPe5 BNd5", "e5d6", "BNd5 WPd6 x "},
        {"a knight beside a pawn", "WNe5 BPd5", "e5d6", "BPd5 WNd6 x "},
        {"occupied destination", "WPe5 BPd5 BNd6", "e5d6", "BPd5 WPd6 x BN0"},
        {"castling White king side", "WKe1 WRh1", "e1g1", "WRf1 WKg1 x "},
        {"castling White queen side", "WKe1 WRa1", "e1c1", "WKc1 WRd1 x "},
        {"castling Black king side", "BKe8 BRh8", "e8g8", "BRf8 BKg8 x "},
        {"castling Black queen side", "BKe8 BRa8", "e8c8", "BKc8 BRd8 x "},
        {"a piece where the rook goes", "WKe1 WRh1 WBf1", "e1g1", "WBf1 WKg1 WRh1 x "},
        {"also on the queen side", "WKe1 WRa1 WQd1", "e1c1", "WRa1 WKc1 WQd1 x "},
        {"a piece where the rook passes", "WKe1 WRa1 WNb1", "e1c1", "WRa1 WNb1 WKc1 x "},
        {"a capture on the way", "WKe1 WRh1 BNg1", "e1g1", "WKg1 WRh1 x BN0"},
        {"the other side's rook", "WKe1 BRh1 BRa1", "e1g1", "BRa1 WKg1 BRh1 x "},
        {"no rook", "WKe1", "e1c1", "WKc1 x "},
        {"king elsewhere", "WKd1 WRh1", "d1g1", "WKg1 WRh1 x "},
        {"a step of the king", "WKe1 WRh1 WRa1", "e1f1", "WRa1 WKf1 WRh1 x "},
        {"White's king on Black's squares", "WKe8 WRh8", "e8g8", "WKg8 WRh8 x "},
        {"queen on the king's squares", "WQe1 WRh1", "e1g1", "WQg1 WRh1 x "},
    };
    for (const Row& row : rows) {
        const std::string move = row.Move;
        Board board = Position(row.Before);
        board.Carry(board.Classify(SquareNamed(move.substr(0, 2)), SquareNamed(move.substr(2))));
        EXPECT_EQ(BoardText(board), row.After) << row.Name;
    }
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
              "WKe1 WPe2 BPe7 BKe8 WBf1 WPf2 BPf7 BBf8 WNg1 WPg2 BPg7 BNg8 WRh1 WPh2 BPh7 BRh8 x ");
    EXPECT_EQ(SlotOf(2 * SlotsPerSide - 1), (TraySlot{*PieceOfCode("BP"), 7}));

    // A promoted pawn is missing, and no kind lacks less than none.
    board = Position("WKe1 WQd1 WQd8 WQa8 WNb1 WNc1 WNe2 WPa2 WPb2 BKe8");
    board.AddCaptured(*PieceOfCode("WQ"));
    board.ShowMissingAsCaptured();
    EXPECT_EQ(TrayText(board),
              "WR0 WR1 WB0 WB1 WP0 WP1 WP2 WP3 WP4 WP5 "
              "BQ0 BR0 BR1 BB0 BB1 BN0 BN1 BP0 BP1 BP2 BP3 BP4 BP5 BP6 BP7");
}
