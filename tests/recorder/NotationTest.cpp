#include "recorder/Notation.h"

#include "tests/recorder/Positions.h"

#include <gtest/gtest.h>

namespace {

std::string Written(const char* pieces, const char* origin, const char* destination, bool longForm = false) {
    const Board board = Position(pieces);
    const Move move = board.Classify(At(origin), At(destination));
    return std::string((longForm ? WriteLongForm(move) : WriteMove(board, move)).View());
}

}  // namespace

TEST(NotationTest, MovesInShortAndLongForm) {
    struct Row {
        const char *Pieces, *Origin, *Destination, *ShortForm, *LongForm;
    };
    const Row rows[] = {
        {"WPe2", "e2", "e4", "e4", "e2-e4"},
        {"WPe4 BPd5", "e4", "d5", "exd5", "e4xd5"},
        {"WPe5 BPd5", "e5", "d6", "exd6ep", "e5xd6ep"},
        {"WNg1 BPf3", "g1", "f3", "Nxf3", "g1xf3"},
        {"BKe8", "e8", "e7", "Ke7", "e8-e7"},
        {"WKe1 WRh1", "e1", "g1", "O-O", "O-O"},
        {"BKe8 BRa8", "e8", "c8", "O-O-O", "O-O-O"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Written(row.Pieces, row.Origin, row.Destination), row.ShortForm);
        EXPECT_EQ(Written(row.Pieces, row.Origin, row.Destination, true), row.LongForm);
    }
}

TEST(NotationTest, DisambiguationIsTheFileOfTheOrigin) {
    struct Row {
        const char *Name, *Pieces, *Origin, *Destination, *Written;
    };
    const Row rows[] = {
        {"two rooks on a rank", "WRa1 WRh1", "a1", "d1", "Rad1"},
        {"two rooks on a file: the file all the same", "WRa1 WRa5", "a1", "a3", "Raa3"},
        {"something between", "WRa1 WRh1 WBe1", "a1", "d1", "Rd1"},
        {"the mover itself stands between", "WRa1 WRb1", "b1", "d1", "Rd1"},
        {"a rook of the other side", "WRa1 BRh1", "a1", "d1", "Rd1"},
        {"a queen is no rook", "WRa1 WQh1", "a1", "d1", "Rd1"},
        {"queens on a diagonal", "WQa1 WQh1", "a1", "e4", "Qae4"},
        {"bishops of one colour", "WBa1 WBh8", "a1", "d4", "Bad4"},
        {"bishops do not move along lines", "WBd1 WBa4", "d1", "a4", "Bxa4"},
        {"knights", "WNb1 WNf3", "b1", "d2", "Nbd2"},
        {"knights on a file", "WNf1 WNf3", "f1", "d2", "Nfd2"},
        {"captures too", "WNb6 WNf4 BPd5", "f4", "d5", "Nfxd5"},
        {"first jump, seen on the wrong rank", "WNb4 WNf4", "f4", "d5", "Nd5"},
        {"and another there", "WNb3 WNf4", "f4", "d5", "Nfd5"},
        {"never the mover itself there", "WNa2 WNe3", "e3", "c4", "Nec4"},
        {"kings and pawns never", "WKe1 WKg1", "e1", "f1", "Kf1"},
    };
    for (const Row& row : rows) EXPECT_EQ(Written(row.Pieces, row.Origin, row.Destination), row.Written) << row.Name;
}

TEST(NotationTest, TypedMovesArePutRight) {
    struct Row {
        const char *Typed, *Normal;
    };
    const Row rows[] = {
        {"", "\?\?-\?\?"}, {"   ", "\?\?-\?\?"}, {" nf3 ", "Nf3"},     {"qxd5+", "Qxd5+"},
        {"Kf1", "Kf1"},    {"0-0-0", "O-O-O"},   {"o-o-o+", "O-O-O+"}, {"1/2-1/2", "1/2-1/2"},
        {"B4", "b4"},      {"bc4", "Bc4"},       {"Bxc6", "Bxc6"},     {"bb4", "Bb4"},
        {"NBd2", "Nbd2"},  {"axb8=b", "axb8=B"}, {"e4!?", "e4!?"},     {"Qa1xb2+xx", "Qa1xb2+x"},
    };
    for (const Row& row : rows) EXPECT_EQ(NormaliseMove(row.Typed), row.Normal) << row.Typed;
}
