#include "recorder/Notation.h"

#include "tests/recorder/RecordText.h"

#include <gtest/gtest.h>

TEST(NotationTest, MovesInShortAndLongForm) {
    struct Row {
        const char *Name, *Pieces, *Move, *Forms;
    };
    const Row rows[] = {
        {"a pawn", "WPe2", "e2e4", "e4 e2-e4"},
        {"a pawn captures", "WPe4 BPd5", "e4d5", "exd5 e4xd5"},
        {"en passant", "WPe5 BPd5", "e5d6", "exd6ep e5xd6ep"},
        {"a piece captures", "WNg1 BPf3", "g1f3", "Nxf3 g1xf3"},
        {"castling", "WKe1 WRh1", "e1g1", "O-O O-O"},
        {"castling, queen side", "BKe8 BRa8", "e8c8", "O-O-O O-O-O"},
        {"two rooks on a rank", "WRa1 WRh1", "a1d1", "Rad1 a1-d1"},
        {"two rooks on a file: the file all the same", "WRa1 WRa5", "a1a3", "Raa3 a1-a3"},
        {"from above", "WRd8 WRa4", "a4d4", "Rad4 a4-d4"},
        {"from the right", "WRh4 WRd1", "d1d4", "Rdd4 d1-d4"},
        {"something between", "WRa1 WRh1 WBe1", "a1d1", "Rd1 a1-d1"},
        {"the mover itself stands between", "WRa1 WRb1", "b1d1", "Rd1 b1-d1"},
        {"a rook of the other side", "WRa1 BRh1", "a1d1", "Rd1 a1-d1"},
        {"a queen is no rook", "WRa1 WQh1", "a1d1", "Rd1 a1-d1"},
        {"rooks do not move along diagonals", "WRd1 WRa1", "d1d4", "Rd4 d1-d4"},
        {"queens on a diagonal", "WQa1 WQh1", "a1e4", "Qae4 a1-e4"},
        {"and on a line", "WQa1 WQe8", "a1e4", "Qae4 a1-e4"},
        {"bishops of one colour", "WBa1 WBh8", "a1d4", "Bad4 a1-d4"},
        {"on the other diagonal", "WBa1 WBg1", "a1d4", "Bad4 a1-d4"},
        {"from the upper left", "WBa1 WBa7", "a1d4", "Bad4 a1-d4"},
        {"bishops do not move along lines", "WBb1 WBd8", "b1d4", "Bd4 b1-d4"},
        {"captures too", "WNb6 WNf4 BPd5", "f4d5", "Nfxd5 f4xd5"},
        {"no knight", "WNa2 WNh8", "a2c4", "Nc4 a2-c4"},
        {"first jump, seen on the wrong rank", "WNb4 WNf4", "f4d5", "Nd5 f4-d5"},
        {"and another there", "WNb3 WNf4", "f4d5", "Nfd5 f4-d5"},
        {"whose rank is on the board", "WNa8 WNf1", "f1c1", "Nc1 f1-c1"},
        {"never the mover itself there", "WNa2 WNe3", "e3c4", "Nec4 e3-c4"},
        {"alone", "WNa2", "a2c4", "Nc4 a2-c4"},
        {"kings never", "WKe1 WKg1", "e1f1", "Kf1 e1-f1"},
    };
    const auto forms = [](const std::string& pieces, const std::string& move) {
        Recorder recorder;
        recorder.Restore(Position(pieces), {}, White, std::nullopt);
        Do(recorder, move);
        return recorder.List(White).Entries()[0].Text + " " + recorder.LastMoveLongForm();
    };
    for (const Row& row : rows) EXPECT_EQ(forms(row.Pieces, row.Move), row.Forms) << row.Name;
    for (const char* other : {"b6", "b4", "c7", "c3", "e7", "e3", "f6", "f4"}) {
        const std::string mover = other == std::string("f4") ? "c7" : "f4";
        const std::string file = other == std::string("b4") ? "" : mover.substr(0, 1);
        EXPECT_EQ(forms("WN" + std::string(other) + " WN" + mover, mover + "d5"), "N" + file + "d5 " + mover + "-d5");
    }
}

TEST(NotationTest, TypedMovesArePutRight) {
    const std::pair<const char*, const char*> rows[] = {
        {"", "\?\?-\?\?"},    {"   ", "\?\?-\?\?"},   {" nf3 ", "Nf3"}, {"qxd5+", "Qxd5+"},   {"Kf1", "Kf1"},
        {"0-0", "O-O"},       {"0-0-0", "O-O-O"},     {"o-O+", "O-O+"}, {"o-o-o+", "O-O-O+"}, {"0-0-0-0", "0-0-0-0"},
        {"0-1", "0-1"},       {"1/2-1/2", "1/2-1/2"}, {"B4", "b4"},     {"b1", "b1"},         {"B8", "b8"},
        {"B9", "B9"},         {"b9", "b9"},           {"bc4", "Bc4"},   {"bH4", "Bh4"},       {"ba1", "Ba1"},
        {"Bxc6", "Bxc6"},     {"bxc6", "bxc6"},       {"bb4", "Bb4"},   {"b", "b"},           {"NBd2", "Nbd2"},
        {"AXB8=B", "aXb8=B"}, {"axb8=b", "axb8=B"},   {"rA1", "Ra1"},   {"e4!?", "e4!?"},     {"Qa1xb2+xx", "Qa1xb2+x"},
    };
    for (const auto& [typed, normal] : rows) EXPECT_EQ(NormaliseMove(typed), normal) << typed;
}
