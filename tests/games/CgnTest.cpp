#include "games/Cgn.h"

#include "tests/recorder/RecordText.h"

namespace {

// The lists that a movetext is read as, with the side to move before it, "_" for a missing move and "~" for a line end,
// and the movetext that they are written as where that is another; or the damage with its offset in the movetext.
std::string ReadCgn(const std::string& given) {
    const std::string head =
        "[Event \"\"]\r\n[Site \"\"]\r\n[Date \"0124-03-09\"]\r\n[Round \"\"]\r\n"
        "[White \"Team 1. Anna\"]\r\n[Black \"Bob \"the Rook\"\"]\r\n[Result \"";
    const Side toMove = given[0] == 'W' ? White : Black;
    std::string movetext = given.size() > 3 ? given.substr(3) : "";
    for (const auto& [sign, text] : {std::pair{'_', std::string(MissingMove)}, {'~', "\r\n"}}) {
        for (size_t at; (at = movetext.find(sign)) != std::string::npos;) movetext.replace(at, 1, text);
    }
    const std::string start = head + "?\"]\r\n\r";
    MoveLists lists = Played("a2a3").Lists();
    if (const auto error = DecodeCgn(start + movetext, toMove, lists)) {
        EXPECT_EQ(ListText(lists) + std::string(ExtensionOf(error->File)), "1. a3 / .cgn") << "nothing is taken";
        return DamageText(error->What, error->Place - static_cast<int>(start.size()));
    }
    const std::string written = EncodeCgn({{124, 3, 9}, {"Team 1. Anna", "Bob \"the Rook\""}}, lists);
    const std::string again = written.substr(written.rfind('\r') + 1), result = again.substr(again.rfind(' ') + 1);
    EXPECT_EQ(written, head + result + "\"]\r\n\r" + again);
    MoveLists readAgain;
    EXPECT_FALSE(DecodeCgn(written, toMove, readAgain));
    EXPECT_EQ(readAgain, lists);
    return ListText(lists) + (again == movetext ? "" : " = " + again);
}

}  // namespace

TEST(CgnTest, MovetextIsReadAndWritten) {
    ExpectRows(ReadCgn, R"(
        W: * =>  / | B: 1. e2-e4 1... e7-e5 2. g1-f3 * => 1. e2-e4|2. g1-f3 / e7-e5 | W: 1... e5 2... d5 * =>  / e5|d5
        B: 1. e4 1... _ 2. _ * => 1. e4|2. _ / 1. _
        The result goes to the side to move, or to the one that has mated.
        B: 1. e4 1... e5 2. Nf3 1/2-1/2 => 1. e4|2. Nf3 / e5|[1/2-1/2] | B: 1. e4# 1... _ 1-0 => 1. e4#|[1-0] / 1. _
        W: 1. e4 1... e5 2. Nf3 1/2-1/2 => 1. e4|2. Nf3|[1/2-1/2] / e5 | B: 1-0 =>  / [1-0]
        W: 1. f3 1... e5 2. g4 2... Qh4# 0-1 => 1. f3|2. g4 / e5|Qh4#|[0-1]
        Read, but never written so.
        W: 1. 1-0 1... 0-1 * => 1. 1-0 / 0-1 | B: 1. e4 1/ => 1. e4 / [1/2-1/2] = 1. e4 1/2-1/2
        B: 1. e4 0- => 1. e4 / [0-1] = 1. e4 0-1 | W: ~1. e4~1... e5 *~ => 1. e4 / e5 = 1. e4 1... e5 *
        B: {opening} 1. e4 * => 1. e4 /  = 1. e4 *
        Damaged.
        W: => EndsEarly 0 | W: x => UnexpectedText 0 | W: 1. e4 1... => EndsEarly 10 | W: 1. e4 => EndsEarly 5
        W: 1. e4 e5 * => UnexpectedText 6 | W: 1. e4 1.. e5 * => UnexpectedText 6 | W: 1. e4 3. e5 * => WrongNumber 6
        W: 1. e4 99999999999999999999. e5 * => UnexpectedText 6 | W: 1. e4 1... e5 1... e5 * => WrongNumber 14
        W: 1. e4 1-0 2. d4 * => UnexpectedText 10
    )");
    MoveLists lists;
    EXPECT_EQ(DecodeCgn("1. e4 *", White, lists), (GameFileError{MovesFile, Damage::NoHead, 7}));
}
