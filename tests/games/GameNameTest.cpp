#include "games/GameName.h"

#include <gtest/gtest.h>

TEST(GameNameTest, KeysThatMayBeTyped) {
    const GameName name;
    for (wchar_t character : std::wstring(L"azAZ09+-_&%#!$()[]{}@'.,;~^\b"))
        EXPECT_TRUE(name.TakesKey(character, L"x")) << static_cast<int>(character);
    for (wchar_t character : std::wstring(L" /\\:*?\"<>|=`\u00E9\u0131\t"))
        EXPECT_FALSE(name.TakesKey(character, L"x")) << static_cast<int>(character);
    const std::wstring full(199, L'x');
    EXPECT_FALSE(name.TakesKey(L'y', full));
    EXPECT_TRUE(name.TakesKey(L'\b', full));
}

TEST(GameNameTest, ChangesThatNoFileNameMayHoldAreSetBack) {
    GameName name;
    EXPECT_EQ(name.Changed(L"final 2"), L"final 2") << "a pasted blank may stay";
    for (const wchar_t* bad : {L"a/b", L"a\\b", L"a:b", L"a*", L"a?", L"\"a", L"<a", L"a>", L"|"})
        EXPECT_EQ(name.Changed(bad), L"final 2");
    EXPECT_EQ(name.Changed(L""), L"");
}

TEST(GameNameTest, NamesOfDevices) {
    for (const wchar_t* name : {L"CON", L"con", L"Nul.game", L"COM1", L"lpt9.x.y", L"COM\u00B2", L"CONIN$", L"aux "})
        EXPECT_TRUE(IsDeviceName(name)) << testing::PrintToString(name);
    for (const wchar_t* name : {L"", L"CONE", L"COM", L"COM12", L"xNUL", L"game.con"})
        EXPECT_FALSE(IsDeviceName(name)) << testing::PrintToString(name);
}
