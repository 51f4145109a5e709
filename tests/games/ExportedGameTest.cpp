#include "games/ExportedGame.h"

#include "games/GameHead.h"
#include "tests/recorder/RecordText.h"

namespace {

// A line end as "/".
std::string InOneLine(std::string text) {
    std::ranges::replace(text, '\n', '/');
    return text;
}

std::string Exported(const ExportHead& head, const std::string& script, const ShownTimes& shown = {}) {
    const Recorder played = Played(script);
    return InOneLine(ExportGame(head, ReadGame(played.Lists(), played.Position()), ResultToken(played.Lists()), shown));
}

std::string Movetext(const std::string& script) {
    const std::string text = Exported({}, script);
    return text.substr(text.find("//") + 2);
}

// The first periods, the second ones and the bonuses, "down" or "up", and the moves of a first period that a second
// follows.
std::string ControlTag(const std::string& words) {
    std::istringstream numbers(words);
    TimeControl control;
    std::string counts;
    for (auto* pair : {&control.PeriodLimit, &control.SecondPeriodTime, &control.MoveBonus})
        numbers >> (*pair)[White] >> (*pair)[Black];
    numbers >> counts >> control.MovesFirstPeriod;
    control.CountTimeDown = counts == "down";
    control.SecondPeriodEnabled = !numbers.fail();
    const std::string text = Exported({.Date = std::nullopt, .Names = {}, .Control = control}, "");
    const size_t start = text.find("TimeControl \"") + 13;
    return text.substr(start, text.find('"', start) - start);
}

}  // namespace

TEST(ExportedGameTest, TagPairsAndTimes) {
    const std::string unknown = R"([Event "?"]/[Site "?"]/[Date "????.??.??"]/[Round "?"]/[White "?"]/[Black "?"]/)";
    EXPECT_EQ(Exported({}, ""), unknown + "[Result \"*\"]//*/");
    const ExportHead head{CalendarDate{2024, 3, 9}, {"\"Al\" \\ Bo", "a\nb"}, std::nullopt};
    EXPECT_EQ(Exported(head, "e2e4 e7e5 g1f3 flagB", {{{3605, std::nullopt}, {59}}}),
              R"([Event "?"]/[Site "?"]/[Date "2024.03.09"]/[Round "?"]/[White "\"Al\" \\ Bo"]/[Black "a?b"]/)"
              R"([Result "1-0"]//1. e4 {[%clk 1:00:05]} 1... e5 {[%clk 0:00:59]} 2. Nf3 1-0/)");
    ExpectRows(ControlTag, R"(
        300 300 60 60 0 0 down => 300 | 300 300 60 60 1 1 down => 300+1 | 7200 7200 3600 3600 5 5 down 40 => 40/7200+5:3600+5
        300 300 0 0 0 0 down 40 => 300 | 300 301 0 0 0 0 down => ? | 300 300 60 61 0 0 down 40 => ? | 300 300 60 61 0 0 down => 300
        300 300 0 0 5 6 down => ? | 300 300 0 0 1 1 up => ? | 300 300 0 0 0 0 up => 300
    )");
}

TEST(ExportedGameTest, Moves) {
    ExpectRows(Movetext, R"(
        e2e4 e7e5 f1c4 b8c6 d1h5 g8f6 h5f7 mate => 1. e4 e5 2. Bc4 Nc6 3. Qh5 Nf6 4. Qxf7# 1-0/
        e2e4 f7f6 d1h5 => 1. e4 f6 2. Qh5+ */ | e2e4 e7e5 e1e3 e8e7 draw => 1. e4 e5 {2. Ke3 Ke7} 1/2-1/2/
        e2e4 e7e5 W0={}%n => {1. ???N e5} */ | e2e4 e7e5 B0=Ke7 => 1. e4 {1... Ke7} */
        e2e3 a7a6 b1c3 a6a5 c3e4 a5a4 e4g3 b7b6 g3e2 b6b5 e2d4 b5b4 g1e2 => 1. e3 a6 2. Nc3 a5 3. Ne4 a4 4. Ng3 b6 5. N1e2 {? N3e2} 5... b5 6. Nd4 b4 7./Nge2 */
        A mate ends the game without a declaration.
        f2f3 e7e5 g2g4 d8h4 => 1. f3 e5 2. g4 Qh4# 0-1/ | f2f3 e7e5 g2g4 d8h4 draw => 1. f3 e5 2. g4 Qh4# 1/2-1/2/
        Rooks on one file and one rank.
        a2a4 h7h6 h2h4 g7g6 a1a3 b7b6 h1h3 c7c6 h3d3 d7d6 a3b3 a7a5 => 1. a4 h6 2. h4 g6 3. Ra3 b6 4. Rhh3 c6 5. Rhd3 d6 6. Rab3 a5 */
    )");
    // Lines have 79 characters at the most. A word that is longer than a line ends it between two characters.
    const auto letters = [](int count, const std::string& letter) {
        std::string text;
        while (count-- > 0) text += letter;
        return text;
    };
    for (const auto& [letter, count, start, rest, end] : {std::tuple{"x", 74, "{1. ", 0, "}/*/"},
                                                          {"x", 76, "{1./", 0, "} */"},
                                                          {"x", 78, "{1./", 0, "}/*/"},
                                                          {"x", 79, "{1./", 0, "/} */"},
                                                          {"\u00FC", 39, "{1./", 6, "} */"}}) {
        const std::string line = letters(count, letter), next = letters(rest, letter);
        EXPECT_EQ(Movetext("e2e4 W0=" + line + next), start + line + (rest > 0 ? "/" + next : "") + end);
    }
}
