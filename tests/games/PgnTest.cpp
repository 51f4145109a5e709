#include "games/Pgn.h"

#include "tests/base/DamageText.h"
#include "tests/recorder/RecordText.h"

#include <gtest/gtest.h>

TEST(PgnTest, TextAndResultAreWrittenAndComeBack) {
    const std::string head =
        "[Event \"\"]\r\n[Site \"\"]\r\n[Date \"2024-12-31\"]\r\n[Round \"\"]\r\n"
        "[White \"A\"]\r\n[Black \"B\"]\r\n[Result \"";
    struct Row {
        const char *Script, *Result, *Text;
    };
    const Row rows[] = {
        {"", "*", "*"},
        {"e2e4 e7e5 g1f3", "*", "1. e4 e5 2. Nf3 *"},
        {"e2e4 e7e5 g1f3 check", "*", "1. e4 e5 2. Nf3+ *"},
        {"e2e4 e7e5 g1f3 mate", "1-0", "1. e4 e5 2. Nf3# 1-0"},
        {"e2e4 mate", "1-0", "1. e4# 1-0"},
        {"e2e4 e7e5 mate", "0-1", "1. e4 e5# 0-1"},
        {"e2e4 draw", "1/2-1/2", "1. e4 1/2-1/2"},
    };
    for (const Row& row : rows) {
        const Recorder played = Played(row.Script);
        const GameHead names{{2024, 12, 31}, {"A", "B"}};
        const std::string file = head + row.Result + "\"]\r\n\r\n" + row.Text + "\r\n";
        EXPECT_EQ(EncodePgn(names, played), file);
        std::string text;
        EXPECT_FALSE(DecodePgn(file, text));
        EXPECT_EQ(text, row.Text);
        Recorder restored;
        restored.Restore(played.Position(), played.Lists(), played.SideToMove(), text);
        EXPECT_EQ(EncodePgn(names, restored), file) << "one result, not two";
    }
    const std::string whole = head + "*\"]\r\n\r\n1. e4 *\r\n";
    for (const auto& [length, damage] : {std::pair<size_t, Damage>{0, Damage::NoHead},
                                         {whole.size() - 12, Damage::NoHead},
                                         {whole.size() - 9, Damage::EndsEarly},
                                         {whole.size() - 1, Damage::EndsEarly}}) {
        std::string text = "kept";
        EXPECT_EQ(DecodePgn(whole.substr(0, length), text),
                  (GameFileError{PgnFile, damage, static_cast<int32_t>(length)}));
        EXPECT_EQ(text, "kept");
    }
}
