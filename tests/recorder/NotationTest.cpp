#include "recorder/Notation.h"

#include "tests/recorder/RecordText.h"

namespace {

// The short and the long form of the move that the last four characters say.
std::string Forms(const std::string& given) {
    Recorder recorder;
    recorder.Restore(Position(given.substr(0, given.size() - 4)), {}, White, std::nullopt);
    Do(recorder, given.substr(given.size() - 4));
    return recorder.List(White).Entries()[0].Text + " " + recorder.LastMoveLongForm();
}

std::string Normalised(const std::string& typed) { return Shortened(NormaliseMove(typed)); }

}  // namespace

TEST(NotationTest, MovesInShortAndLongForm) {
    ExpectRows(Forms, R"(
        WPe2 e2e4 => e4 e2-e4 | WPe4 BPd5 e4d5 => exd5 e4xd5 | WPe5 BPd5 e5d6 => exd6ep e5xd6ep
        WNg1 BPf3 g1f3 => Nxf3 g1xf3 | WKe1 WRh1 e1g1 => O-O O-O | BKe8 BRa8 e8c8 => O-O-O O-O-O
        WRa1 WRh1 a1d1 => Rad1 a1-d1 | WRa1 WRa5 a1a3 => Raa3 a1-a3 | WRd8 WRa4 a4d4 => Rad4 a4-d4
        WRh4 WRd1 d1d4 => Rdd4 d1-d4 | WRa1 WRh1 WBe1 a1d1 => Rd1 a1-d1 | WRa1 WRb1 b1d1 => Rd1 b1-d1
        WRa1 BRh1 a1d1 => Rd1 a1-d1 | WRa1 WQh1 a1d1 => Rd1 a1-d1 | WRd1 WRa1 d1d4 => Rd4 d1-d4 | WNa2 a2c4 => Nc4 a2-c4
        WQa1 WQh1 a1e4 => Qae4 a1-e4 | WQa1 WQe8 a1e4 => Qae4 a1-e4 | WBa1 WBh8 a1d4 => Bad4 a1-d4
        WBa1 WBg1 a1d4 => Bad4 a1-d4 | WBa1 WBa7 a1d4 => Bad4 a1-d4 | WBb1 WBd8 b1d4 => Bd4 b1-d4
        WNb6 WNf4 BPd5 f4d5 => Nfxd5 f4xd5 | WNa2 WNh8 a2c4 => Nc4 a2-c4 | WNb4 WNf4 f4d5 => Nd5 f4-d5
        WNb3 WNf4 f4d5 => Nfd5 f4-d5 | WNb3 WNe3 e3d1 => Nd1 e3-d1 | WNa2 WNe1 e1c2 => Nec2 e1-c2
        WNa2 WNe3 e3c4 => Nec4 e3-c4 | WKe1 WKg1 e1f1 => Kf1 e1-f1
    )");
    // The other knight on each square from which it could jump, but for the one that is looked for elsewhere.
    for (const std::string other : {"b6", "b4", "c7", "c3", "e7", "e3", "f6", "f4"}) {
        const std::string mover = other == "f4" ? "c7" : "f4", file = other == "b4" ? "" : mover.substr(0, 1);
        EXPECT_EQ(Forms("WN" + other + " WN" + mover + " " + mover + "d5"), "N" + file + "d5 " + mover + "-d5");
    }
}

TEST(NotationTest, TypedMovesArePutRight) {
    EXPECT_EQ(Normalised("   ") + Normalised(" nf3 "), "_Nf3");
    ExpectRows(Normalised, R"(
        B1 => b1 | B8 => b8 | B9 => B9
        => _ | => _ | nf3  => Nf3 | qxd5+ => Qxd5+ | Kf1 => Kf1 | 0-0 => O-O | 0-0-0 => O-O-O | o-O+ => O-O+
        o-o-o+ => O-O-O+ | 0-0-0-0 => 0-0-0-0 | 0-1 => 0-1 | 1/2-1/2 => 1/2-1/2 | B4 => b4 | b1 => b1 | B8 => b8
        B9 => B9 | b9 => b9 | bc4 => Bc4 | bH4 => Bh4 | ba1 => Ba1 | Bxc6 => Bxc6 | bxc6 => bxc6 | bb4 => Bb4 | b => b
        NBd2 => Nbd2 | AXB8=B => aXb8=B | axb8=b => axb8=B | rA1 => Ra1 | e4!? => e4!? | exD6ep!?+ => exd6ep!?+
    )");
}
