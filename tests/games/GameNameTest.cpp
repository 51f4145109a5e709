#include "games/GameName.h"

#include "games/ProposedName.h"
#include "tests/base/Rows.h"

namespace {

std::wstring Widened(const std::string& text) { return {text.begin(), text.end()}; }

// What is proposed for "White / Black / so many names taken".
std::string Proposed(const std::string& given) {
    const size_t first = given.find(" / "), second = given.rfind(" / ");
    int taken = std::stoi(given.substr(second + 3));
    const std::wstring name =
        ProposedName({Widened(given.substr(0, first)), Widened(given.substr(first + 3, second - first - 3))},
                     {L"White", L"Black"}, {2026, 3, 9}, [&](const std::wstring&) { return taken-- > 0; });
    EXPECT_EQ(FaultOfName(name), std::nullopt) << given;
    return {name.begin(), name.end()};
}

}  // namespace

TEST(GameNameTest, KeysAndChanges) {
    GameName name;
    for (wchar_t character : std::wstring(L"azAZ09+-_&%#!$()[]{}@'.,;~^\b"))
        EXPECT_TRUE(name.TakesKey(character, L"x")) << static_cast<int>(character);
    for (wchar_t character : std::wstring(L" /\\:*?\"<>|=`\u00E9\u0131\t"))
        EXPECT_FALSE(name.TakesKey(character, L"x")) << static_cast<int>(character);
    EXPECT_TRUE(name.TakesKey(L'y', std::wstring(198, L'x')));
    EXPECT_FALSE(name.TakesKey(L'y', std::wstring(199, L'x')));
    EXPECT_TRUE(name.TakesKey(L'\b', std::wstring(199, L'x')));

    EXPECT_EQ(name.Changed(L"final 2"), L"final 2") << "a pasted blank may stay";
    for (wchar_t forbidden : std::wstring(L"\\/:*?\"<>|\t\x1F")) EXPECT_EQ(name.Changed({L'a', forbidden}), L"final 2");
    EXPECT_EQ(name.Changed(L""), L"");
    EXPECT_EQ(name.LastGood(), L"");
}

TEST(GameNameTest, NamesThatNoNewGameMayHave) {
    for (const wchar_t* name : {L"CON", L"con", L"Nul.game", L"PRN", L"COM1", L"lpt9.x.y", L"COM0", L"COM\u00B2",
                                L"CONIN$", L"conout$", L"aux .x"})
        EXPECT_EQ(FaultOfName(name), TextId::DeviceName) << testing::PrintToString(name);
    for (const wchar_t* name :
         {L"", L" a", L"CONE", L"COM", L"COM12", L"COMx", L"COMMA1", L"XOM1", L"xNUL", L"game.con", L".a"})
        EXPECT_EQ(FaultOfName(name), std::nullopt) << testing::PrintToString(name);
    for (const wchar_t* name : {L".", L"..", L" ", L"a ", L"a.", L"NUL "})
        EXPECT_EQ(FaultOfName(name), TextId::NameEndsInDot) << testing::PrintToString(name);
    EXPECT_EQ(FaultOfName(std::wstring(199, L'x')), std::nullopt);
    EXPECT_EQ(FaultOfName(std::wstring(200, L' ')), TextId::NameTooLong);
}

TEST(GameNameTest, AProposedNameIsOneThatEveryGameMayHave) {
    const std::string longest(80, 'x');
    ExpectRows(Proposed, "Anna / Bob / 0 => Anna-Bob 2026-03-09 | Anna / Bob / 1 => Anna-Bob 2026-03-09 (2)");
    ExpectRows(Proposed, "Anna / Bob / 12 => Anna-Bob 2026-03-09 (13) | ... / " + longest + " y / 0 => White-" +
                             longest + " 2026-03-09");
    ExpectRows(Proposed, R"(
        Team 1. Ann  / a\b:c? / 0 => Team 1 Ann-a-b-c- 2026-03-09
        con. x / <"a/b*|> / 0 => con x---a-b--- 2026-03-09 | . . / aux. / 0 => White-aux 2026-03-09
    )");
}
