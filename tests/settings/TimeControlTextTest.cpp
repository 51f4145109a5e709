#include "settings/TimeControlText.h"

#include "settings/SetupRules.h"
#include "tests/settings/SettingsText.h"

#include <algorithm>

namespace {

// What a text of times means, with what the settings become that take it, or "none".
std::string Taken(const std::string& text) {
    const auto times = TimesOfText(text);
    if (!times) return "none";
    EXPECT_EQ(TimesOfText(TextOf(*times)), times);
    Settings settings = Unusual();
    TakeTimes(*times, settings);
    EXPECT_EQ(TimesOf(settings), *times) << "they are found again";
    const std::string all = SettingsText(settings), moves = all.substr(all.find(':') - 1);
    return TextOf(*times) + "; " + all.substr(6, all.find(" turn") - 6) + " " + moves.substr(0, moves.find(' '));
}

// Lines with "|" for their ends.
std::string Lines(std::string text, const std::string& from, const std::string& to) {
    for (size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

}  // namespace

TEST(TimeControlTextTest, TimesAreWrittenAsTheyAreRead) {
    ExpectRows(Taken, R"(
        game 5 => game 5; 300,300 0,600 3599,7 down 0:1
        game 5/3 up => game 5/3 up; 300,180 0,600 3599,7 0:1
        hourglass 3 => hourglass 3; 180,180 0,600 3599,7 down 3:1
        moves 120 then 60 after 40 => moves 120 then 60 after 40; 7200,7200 3600,3600 3599,7 down second 1:40
        moves 120 then 60/0 after 150 => moves 120 then 60/0 after 150; 7200,7200 3600,0 3599,7 down second 1:150
        fischer 90 plus 30 then 30 => fischer 90 then 30 after 40 plus 30; 5400,5400 1800,1800 30,30 down second 2:40
        fischer  15 plus 10/0 => fischer 15 plus 10/0; 900,900 0,0 10,0 down second 2:1
        game 35791394 => game 35791394; 2147483640,2147483640 0,600 3599,7 down 0:1
        What a type lacks, what is twice there, and what is no number.
        game 5 plus 3 => none | game 5 then 5 => none | moves 5 plus 1 => none | moves 5 after 40 => none
        fischer 5 plus 3 plus 4 => none | moves 9 then 9 then 8 => none | game 5 up up => none | game 0 => none
        game => none | => none | game 5/ => none | game -5 => none | game 5x => none | game 35791395 => none
        blitz 5 => none | game 5 fast 3 => none | fischer 5 plus => none | moves 9 then 9 after 0 => none | game +5 => none)");
    Settings fischer = Unusual();
    fischer.Control.SecondPeriodTime.fill(0);
    fischer.Control.MoveBonus.fill(10);
    fischer.Control.PeriodLimit.fill(900);
    fischer.Control.CountTimeDown = true;
    EXPECT_EQ(TimesOf(fischer), SimpleTimes(2, 15, 10)) << "the moves before no second period do not matter";
}

TEST(TimeControlTextTest, OtherLinesStayWhateverIsKeptAndRemoved) {
    const std::string written =
        "\xEF\xBB\xBF# mine|Salı = game 10||Club = fischer 90 plus 30|Club = game 1|=game 5|#x = game "
        "5|nothing|a=b=game 5|Sal\xFD = game 9|\xC5 = game 9";
    TimeControlText text(Lines(written, "|", "\r\n"));
    std::string names, bad;
    for (const NamedTimes& one : text.Controls()) names += one.Name + " = " + TextOf(one.Times) + "; ";
    for (const std::string& line : text.BadLines()) bad += line + "; ";
    EXPECT_EQ(names, "Salı = game 10; Club = fischer 90 plus 30; ");
    EXPECT_EQ(bad,
              "5: Club = game 1; 6: =game 5; 8: nothing; 9: a=b=game 5; 10: Sal\xFD = game 9; 11: \xC5 = game 9; ");
    const auto expect = [&](const std::string& after) { EXPECT_EQ(Lines(text.Bytes(), "\r\n", "|"), after); };
    text.Keep("Salı", SimpleTimes(3, 4, 0));
    expect(Lines(written, "game 10", "hourglass 4"));
    text.Remove("Salı");
    text.Remove("nothing");
    expect(Lines(written, "Salı = game 10|", ""));
    text.Keep("Z", SimpleTimes(2, 3, 2));
    expect(Lines(written, "Salı = game 10|", "") + "|Z = fischer 3 plus 2|");

    TimeControlText empty("");
    empty.Keep("A", SimpleTimes(0, 5, 0));
    EXPECT_EQ(empty.Controls().size(), 1U);
    EXPECT_TRUE(empty.BadLines().empty()) << "its own head is none";
    for (const char* name : {"", " a", "a ", "#a", "a=b", "a\tb"}) EXPECT_FALSE(TimeControlText::IsName(name)) << name;
    EXPECT_TRUE(TimeControlText::IsName("60+30 #2"));
}
