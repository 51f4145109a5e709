#include "games/Pgn.h"

#include "tests/base/Rows.h"
#include "tests/recorder/RecordText.h"

namespace {

// The result and the text that a script of play is written as; a recorder that is given the text writes the same.
std::string Written(const std::string& script) {
    const GameHead names{{2024, 12, 31}, {"A", "B"}};
    const std::string head =
        "[Event \"\"]\r\n[Site \"\"]\r\n[Date \"2024-12-31\"]\r\n[Round \"\"]\r\n"
        "[White \"A\"]\r\n[Black \"B\"]\r\n[Result \"";
    const Recorder played = Played(script);
    const std::string file = EncodePgn(names, played);
    EXPECT_EQ(file.substr(0, head.size()), head);
    std::string text;
    EXPECT_FALSE(DecodePgn(file, text));
    Recorder restored;
    restored.Restore(played.Position(), played.Lists(), played.SideToMove(), text);
    EXPECT_EQ(EncodePgn(names, restored), file);
    for (const auto& [length, damage] : {std::pair<size_t, Damage>{0, Damage::NoHead},
                                         {head.size() + 5, Damage::NoHead},
                                         {file.size() - 2, Damage::EndsEarly},
                                         {file.size() - 1, Damage::EndsEarly}}) {
        std::string kept = "kept";
        EXPECT_EQ(DecodePgn(file.substr(0, length), kept),
                  (GameFileError{PgnFile, damage, static_cast<int32_t>(length)}));
        EXPECT_EQ(kept, "kept");
    }
    const std::string result = file.substr(head.size(), file.find('"', head.size()) - head.size());
    EXPECT_EQ(file, head + result + "\"]\r\n\r\n" + text + "\r\n");
    return result + ": " + text;
}

}  // namespace

TEST(PgnTest, TextAndResultAreWrittenAndComeBack) {
    ExpectRows(Written, R"(
        => *: * | e2e4 e7e5 g1f3 => *: 1. e4 e5 2. Nf3 * | e2e4 e7e5 check => *: 1. e4 e5+ *
        e2e4 mate => 1-0: 1. e4# 1-0 | e2e4 e7e5 mate => 0-1: 1. e4 e5# 0-1 | e2e4 draw => 1/2-1/2: 1. e4 1/2-1/2
    )");
}
