#include "games/Pgn.h"

#include "tests/recorder/RecordText.h"

namespace {

// The result and the text that a script of play is written as.
std::string Written(const std::string& script) {
    const GameHead names{{2024, 12, 31}, {"A", "B"}};
    const Recorder played = Played(script);
    const std::string file = EncodePgn(names, played), result(ResultToken(played.Lists()));
    const size_t head = EncodeHead(names, result).size();
    std::string text;
    EXPECT_FALSE(DecodePgn(file, text));
    EXPECT_EQ(file, EncodeHead(names, result) + "\r\n" + text + "\r\n");
    for (const size_t length : {size_t{0}, head - 1, file.size() - 2, file.size() - 1}) {
        std::string kept = "kept";
        const Damage damage = length < head ? Damage::NoHead : Damage::EndsEarly;
        EXPECT_EQ(DecodePgn(file.substr(0, length), kept),
                  (GameFileError{PgnFile, damage, static_cast<int32_t>(length)}));
        EXPECT_EQ(kept, "kept");
    }
    return result + ": " + text;
}

}  // namespace

TEST(PgnTest, TextAndResultAreWrittenAndComeBack) {
    ExpectRows(Written, R"(
        => *: * | e2e4 e7e5 g1f3 => *: 1. e4 e5 2. Nf3 * | e2e4 e7e5 check => *: 1. e4 e5+ *
        e2e4 mate => 1-0: 1. e4# 1-0 | e2e4 e7e5 mate => 0-1: 1. e4 e5# 0-1 | e2e4 draw => 1/2-1/2: 1. e4 1/2-1/2
    )");
}
