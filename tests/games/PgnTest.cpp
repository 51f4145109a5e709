#include "games/Pgn.h"

#include "tests/games/GameText.h"

namespace {

const std::string Lines =
    "[Event \"\"]\r\n[Site \"\"]\r\n[Date \"2024-12-31\"]\r\n[Round \"\"]\r\n[White \"A\"]\r\n[Black \"B\"]\r\n";

std::string File(const std::string& text, const std::string& result) {
    return Lines + "[Result \"" + result + "\"]\r\n\r\n" + text + "\r\n";
}

std::string Written(const Recorder& recorder) { return EncodePgn({{2024, 12, 31}, {"A", "B"}}, recorder); }

}  // namespace

TEST(PgnTest, TextAndResultAreWrittenAndComeBack) {
    Recorder recorder = Played("e2e4 e7e5 g1f3");
    EXPECT_EQ(Written(recorder), File("1. e4 e5 2. Nf3 *", "*"));
    recorder.Declare(Declaration::Check, {});
    EXPECT_EQ(Written(recorder), File("1. e4 e5 2. Nf3+ *", "*"));
    recorder.Declare(Declaration::Mate, {});
    const std::string ended = File("1. e4 e5 2. Nf3# 1-0", "1-0");
    EXPECT_EQ(Written(recorder), ended);
    EXPECT_EQ(Written(Recorder()), File("*", "*"));

    std::string text;
    ASSERT_FALSE(DecodePgn(ended, text));
    EXPECT_EQ(text, "1. e4 e5 2. Nf3# 1-0");
    Recorder restored;
    restored.Restore(recorder.Position(), recorder.Lists(), Black, text);
    EXPECT_EQ(Written(restored), ended) << "one result, not two";
}

TEST(PgnTest, DamagedFilesAreRefused) {
    const std::string whole = File("1. e4 *", "*");
    std::string text = "kept";
    for (const auto& [bytes, rule] : {std::pair{std::string(), Damage::NoHead},
                                      {Lines, Damage::NoHead},
                                      {whole.substr(0, whole.size() - 1), Damage::EndsEarly},
                                      {whole.substr(0, whole.size() - 9), Damage::EndsEarly}}) {
        EXPECT_EQ(DecodePgn(bytes, text), (GameFileError{PgnFile, rule, static_cast<int32_t>(bytes.size())}));
        EXPECT_EQ(text, "kept");
    }
}
