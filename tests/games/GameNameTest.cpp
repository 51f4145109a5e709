#include "games/GameName.h"

#include <gtest/gtest.h>

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
    for (wchar_t forbidden : std::wstring(L"\\/:*?\"<>|")) EXPECT_EQ(name.Changed({L'a', forbidden}), L"final 2");
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
