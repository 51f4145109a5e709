#include "recorder/Board.h"

#include "tests/recorder/Positions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::string Codes(const Board& board, const std::vector<std::string>& squares) {
    std::string codes;
    for (const std::string& square : squares) codes += std::string(PieceCode(board.At(At(square)))) + " ";
    return codes;
}

}  // namespace

TEST(BoardTest, KindsOfMovesAreToldByTheSquaresAlone) {
    struct Row {
        const char *Name, *Pieces, *Origin, *Destination;
        MoveKind Kind;
    };
    const Row rows[] = {
        {"own piece", "WPe4 WPd5", "e4", "d5", MoveKind::Capture},
        {"en passant White", "WPe5 BPd5", "e5", "d6", MoveKind::EnPassant},
        {"en passant Black", "BPe4 WPf4", "e4", "f3", MoveKind::EnPassant},
        {"a pawn of its own beside", "WPe5 WPd5", "e5", "d6", MoveKind::Ordinary},
        {"wrong rank", "WPe4 BPd4", "e4", "d5", MoveKind::Ordinary},
        {"no pawn beside", "WPe5 BNd5", "e5", "d6", MoveKind::Ordinary},
        {"occupied destination", "WPe5 BPd5 BNd6", "e5", "d6", MoveKind::Capture},
        {"castling White king side", "WKe1 WRh1", "e1", "g1", MoveKind::CastlingKingSide},
        {"castling White queen side", "WKe1 WRa1", "e1", "c1", MoveKind::CastlingQueenSide},
        {"castling Black king side", "BKe8 BRh8", "e8", "g8", MoveKind::CastlingKingSide},
        {"castling Black queen side", "BKe8 BRa8", "e8", "c8", MoveKind::CastlingQueenSide},
        {"a piece where the rook goes", "WKe1 WRh1 WBf1", "e1", "g1", MoveKind::Ordinary},
        {"a piece where the rook passes", "WKe1 WRa1 WNb1", "e1", "c1", MoveKind::Ordinary},
        {"a capture on the way", "WKe1 WRh1 BNg1", "e1", "g1", MoveKind::Capture},
        {"the other side's rook", "WKe1 BRh1", "e1", "g1", MoveKind::Ordinary},
        {"king elsewhere", "WKd1 WRh1", "d1", "g1", MoveKind::Ordinary},
        {"White's king on Black's squares", "WKe8 WRh8", "e8", "g8", MoveKind::Ordinary},
        {"queen on the king's squares", "WQe1 WRh1", "e1", "g1", MoveKind::Ordinary},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(Position(row.Pieces).Classify(At(row.Origin), At(row.Destination)).Kind, row.Kind);
    }
}

TEST(BoardTest, SideEffectsAreCarriedOut) {
    Board board = Position("WPe5 BPd5 WKe1 WRh1 BKe8 BRa8");
    board.Carry(board.Classify(At("e5"), At("d6")));
    board.Carry(board.Classify(At("e1"), At("g1")));
    board.Carry(board.Classify(At("e8"), At("c8")));
    EXPECT_EQ(Codes(board, {"e5", "d5", "d6"}), "O O WP ");
    EXPECT_EQ(Codes(board, {"e1", "f1", "g1", "h1"}), "O WR WK O ");
    EXPECT_EQ(Codes(board, {"a8", "c8", "d8", "e8"}), "O BK BR O ");
    EXPECT_TRUE(board.CapturedShown(PieceOf(Black, PieceKind::Pawn), 0));
}

TEST(BoardTest, TraysShowTheFirstHiddenSlotAndNoMoreThanTheyHave) {
    Board board;
    const Piece rook = PieceOf(White, PieceKind::Rook), king = PieceOf(Black, PieceKind::King);
    const auto shown = [&](Piece piece) {
        std::string slots;
        for (int slot = 0; slot < 8; ++slot) slots += board.CapturedShown(piece, slot) ? '1' : '0';
        return slots;
    };
    for (int i = 0; i < 3; ++i) board.AddCaptured(rook);
    EXPECT_EQ(shown(rook), "11000000");
    board.HideCaptured(rook, 0);
    EXPECT_EQ(shown(rook), "01000000");
    board.AddCaptured(rook);
    EXPECT_EQ(shown(rook), "11000000");
    for (int i = 0; i < 10; ++i) board.AddCaptured(PieceOf(Black, PieceKind::Pawn));
    EXPECT_EQ(shown(PieceOf(Black, PieceKind::Pawn)), "11111111");
    board.AddCaptured(king);
    EXPECT_EQ(shown(king), "00000000");
    board.Reset();
    EXPECT_EQ(shown(rook), "00000000");
}

TEST(BoardTest, WhatAPositionLacksIsShownAsCaptured) {
    const auto shown = [](const Board& board, Side side) {
        std::string pieces;
        for (const PieceKind kind : TrayKinds) {
            for (int slot = 0; slot < 8; ++slot) {
                if (board.CapturedShown(PieceOf(side, kind), slot)) pieces += PieceLetter(kind);
            }
        }
        return pieces;
    };
    Board board = Position("WKe1 WQd1 WQd8 WQa8 WNb1 WNc1 WNe2 WPa2 WPb2 BKe8");
    board.AddCaptured(PieceOf(White, PieceKind::Queen));
    board.ShowMissingAsCaptured();
    EXPECT_EQ(shown(board, White), "RRBBPPPPPP") << "promoted pawns are missing, and no kind has less than none";
    EXPECT_EQ(shown(board, Black), "QRRBBNNPPPPPPPP");
}
