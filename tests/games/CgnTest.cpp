#include "games/Cgn.h"

#include "tests/base/DamageText.h"
#include "tests/recorder/RecordText.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* Head =
    "[Event \"\"]\r\n[Site \"\"]\r\n[Date \"0124-03-09\"]\r\n[Round \"\"]\r\n"
    "[White \"Team 1. Anna\"]\r\n[Black \"Bob \"the Rook\"  \"]\r\n[Result \"";

// The lists that a movetext is read as, and their movetext and result where those are others; or the damage with its
// offset in the movetext.
std::string Read(const std::string& movetext, Side toMove) {
    const std::string start = Head + std::string("?\"]\r\n\r");
    MoveLists lists = Played("a2a3").Lists();
    if (const auto error = DecodeCgn(start + movetext, toMove, lists)) {
        EXPECT_EQ(error->File, MovesFile);
        EXPECT_EQ(ListText(lists), "1. a3 / ") << "nothing is taken";
        return DamageText(error->What, error->Place - static_cast<int>(start.size()));
    }
    const std::string written = EncodeCgn({{124, 3, 9}, {"Team 1. Anna", "Bob \"the Rook\"\r\n"}}, lists), head = Head;
    EXPECT_EQ(written.substr(0, head.size()), head);
    const std::string tail = written.substr(head.size()), gap = "\"]\r\n\r",
                      again = tail.substr(tail.find(gap) + gap.size());
    EXPECT_TRUE(again.ends_with(tail.substr(0, tail.find(gap)))) << tail;
    MoveLists readAgain;
    EXPECT_FALSE(DecodeCgn(written, toMove, readAgain));
    EXPECT_EQ(ListText(readAgain), ListText(lists));
    return ListText(lists) + (again == movetext ? "" : " = " + again);
}

}  // namespace

TEST(CgnTest, MovetextIsReadAndWritten) {
    struct Row {
        const char* Movetext;
        Side ToMove;
        const char* Read;
    };
    const Row rows[] = {
        {"*", White, " / "},
        {"1. e2-e4 1... e7-e5 2. g1-f3 *", Black, "1. e2-e4|2. g1-f3 / e7-e5"},
        {"1. e4 1... \?\?-\?\? 2. \?\?-\?\? *", Black, "1. e4|2. _ / 1. _"},
        // The result goes to the side to move, or to the one that has mated.
        {"1. e4 1... e5 2. Nf3 1/2-1/2", Black, "1. e4|2. Nf3 / e5|[1/2-1/2]"},
        {"1. e4 1... e5 2. Nf3 1/2-1/2", White, "1. e4|2. Nf3|[1/2-1/2] / e5"},
        {"1. f3 1... e5 2. g4 2... Qh4# 0-1", White, "1. f3|2. g4 / e5|Qh4#|[0-1]"},
        {"1. e4# 1... \?\?-\?\? 1-0", Black, "1. e4#|[1-0] / 1. _"},
        {"1... e5 2... d5 *", White, " / e5|d5"},
        {"1-0", Black, " / [1-0]"},
        // Read, but never written so.
        {"1. 1-0 1... 0-1 *", White, "1. 1-0 / 0-1"},
        {"1. e4 1/", Black, "1. e4 / [1/2-1/2] = 1. e4 1/2-1/2"},
        {"1. e4 0-", Black, "1. e4 / [0-1] = 1. e4 0-1"},
        {"\n1. e4\r\n1... e5 *\r\n", White, "1. e4 / e5 = 1. e4 1... e5 *"},
        {"{opening} 1. e4 *", Black, "1. e4 /  = 1. e4 *"},
        // Damaged.
        {"", White, "EndsEarly 0"},
        {"x", White, "UnexpectedText 0"},
        {"1. e4 1...", White, "EndsEarly 10"},
        {"1. e4", White, "EndsEarly 5"},
        {"1. e4 e5 *", White, "UnexpectedText 6"},
        {"1. e4 1.. e5 *", White, "UnexpectedText 6"},
        {"1. e4 99999999999999999999. e5 *", White, "UnexpectedText 6"},
        {"1. e4 3. e5 *", White, "WrongNumber 6"},
        {"1. e4 1... e5 1... e5 *", White, "WrongNumber 14"},
        {"1. e4 1-0 2. d4 *", White, "UnexpectedText 10"},
    };
    for (const Row& row : rows) EXPECT_EQ(Read(row.Movetext, row.ToMove), row.Read) << row.Movetext;
    MoveLists lists;
    EXPECT_EQ(DecodeCgn("1. e4 *", White, lists), (GameFileError{MovesFile, Damage::NoHead, 7}));
}
