#include "games/Cgn.h"

#include "tests/games/GameText.h"

namespace {

const std::string Waiting = "\?\?-\?\?";
const GameHead Head{{2024, 3, 9}, {"Team 1. Anna", "Bob \"the Rook\""}};
const std::string Lines =
    "[Event \"\"]\r\n[Site \"\"]\r\n[Date \"2024-03-09\"]\r\n[Round \"\"]\r\n"
    "[White \"Team 1. Anna\"]\r\n[Black \"Bob \"the Rook\"\"]\r\n[Result \"";

std::string File(const std::string& movetext, const std::string& result = "*") {
    return Lines + result + "\"]\r\n\r" + movetext;
}

// "1. e4|2. ??-??|[1-0] / e5" as lists.
MoveLists Lists(const std::string& text) {
    MoveLists lists;
    std::istringstream words(text);
    Side side = White;
    for (std::string word; words >> word;) {
        if (word == "/")
            side = Black;
        else if (word.starts_with('['))
            lists[side].AddResult(word.substr(1, word.size() - 2));
        else
            lists[side].SetText(lists[side].AddWaiting(), word);
    }
    return lists;
}

}  // namespace

TEST(CgnTest, MovetextIsWrittenAsItStandsInTheLists) {
    struct Row {
        const char* Name;
        std::string Lists, Movetext, Result;
    };
    const Row rows[] = {
        {"no result", "e2-e4 g1-f3 / e7-e5", "1. e2-e4 1... e7-e5 2. g1-f3 *", "*"},
        {"nothing", "/", "*", "*"},
        {"White's result", "e4 [0-1] / e5", "1. e4 1... e5 0-1", "0-1"},
        {"Black's result beside White's last move", "e4 Nf3 / e5 [1-0]", "1. e4 1... e5 2. Nf3 1-0", "1-0"},
        {"Black's result far behind White's list", "e4 d4 c4 / e5 [1-0]", "1. e4 1... e5 2. d4 3. c4 1-0", "1-0"},
        {"waiting lines", "e4 " + Waiting + " / " + Waiting, "1. e4 1... " + Waiting + " 2. " + Waiting + " *", "*"},
        {"a move that reads like a result", "1-0 d4 / e5", "1. 1-0 1... e5 2. d4 *", "*"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(EncodeCgn(Head, Lists(row.Lists)), File(row.Movetext, row.Result));
    }
}

TEST(CgnTest, ListsAndResultComeBack) {
    struct Row {
        const char* Name;
        std::string Movetext;
        Side ToMove;
        std::string Lists;
    };
    const Row rows[] = {
        {"as written", "1. e2-e4 1... e7-e5 2. g1-f3 *", Black, "1. e2-e4|2. g1-f3 / e7-e5"},
        {"result of the side to move", "1. e4 1... e5 2. Nf3 1/2-1/2", Black, "1. e4|2. Nf3 / e5|[1/2-1/2]"},
        {"and of the other one", "1. e4 1... e5 2. Nf3 1/2-1/2", White, "1. e4|2. Nf3|[1/2-1/2] / e5"},
        {"mate: of the mover", "1. f3 1... e5 2. g4 2... Qh4# 0-1", White, "1. f3|2. g4 / e5|Qh4#|[0-1]"},
        {"mate, then a waiting line", "1. e4# 1... " + Waiting + " 1-0", Black, "1. e4#|[1-0] / 1. " + Waiting},
        {"a numbered result is a move", "1. 1-0 1... 0-1 *", White, "1. 1-0 / 0-1"},
        {"results by their first characters", "1. e4 1/", Black, "1. e4 / [1/2-1/2]"},
        {"White's moves missing", "1... e5 2... d5 *", White, " / e5|d5"},
        {"line ends among the moves", "\n1. e4\r\n1... e5 *\r\n", White, "1. e4 / e5"},
        {"something before the moves", "{opening} 1. e4 *", Black, "1. e4 / "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        MoveLists lists;
        const std::string bytes = File(row.Movetext);
        const auto error = DecodeCgn(bytes, row.ToMove, lists);
        ASSERT_FALSE(error) << error->Place;
        EXPECT_EQ(ListText(lists), row.Lists);
        MoveLists again;
        ASSERT_FALSE(DecodeCgn(EncodeCgn(Head, lists), row.ToMove, again));
        EXPECT_EQ(ListText(again), row.Lists);
    }
}

TEST(CgnTest, DamageIsNamedWithItsOffset) {
    struct Row {
        const char* Name;
        std::string Movetext;
        Damage What;
        size_t Offset;  // in the movetext
    };
    const Row rows[] = {
        {"cut behind a number", "1. e4 1...", Damage::EndsEarly, 10},
        {"cut before the moves", "", Damage::EndsEarly, 0},
        {"a word too many", "1. e4 e5 *", Damage::UnexpectedText, 6},
        {"a number too large", "1. e4 99999999999999999999. e5 *", Damage::UnexpectedText, 6},
        {"a number left out", "1. e4 3. e5 *", Damage::WrongNumber, 6},
        {"Black's number twice", "1. e4 1... e5 1... e5 *", Damage::WrongNumber, 14},
        {"moves behind the result", "1. e4 1-0 2. d4 *", Damage::UnexpectedText, 10},
    };
    const auto start = static_cast<int32_t>(File("").size());
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Name);
        MoveLists lists = Lists("kept /");
        EXPECT_EQ(DecodeCgn(File(row.Movetext), White, lists),
                  (GameFileError{MovesFile, row.What, start + static_cast<int32_t>(row.Offset)}));
        EXPECT_EQ(ListText(lists), "1. kept / ");
    }
    MoveLists lists;
    EXPECT_EQ(DecodeCgn("1. e4 *", White, lists), (GameFileError{MovesFile, Damage::NoHead, 7}));
}

TEST(CgnTest, NamesStayOnTheirLine) {
    const std::string bytes = EncodeCgn({{1, 2, 3}, {"A\r\n\r\nB", ""}}, Lists("e4 /"));
    EXPECT_NE(bytes.find("[Date \"0001-02-03\"]\r\n[Round \"\"]\r\n[White \"A    B\"]\r\n"), std::string::npos);
    MoveLists lists;
    EXPECT_FALSE(DecodeCgn(bytes, Black, lists));
}
