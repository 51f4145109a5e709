#include "recorder/TypedMove.h"

#include <gtest/gtest.h>

TEST(TypedMoveTest, KeysAndChanges) {
    TypedMove typed;
    for (wchar_t key : std::wstring(L"ahAHqrbnQN19oO-x=ep+#?!\b"))
        EXPECT_TRUE(typed.TakesKey(key, L"")) << static_cast<int>(key);
    for (wchar_t key : std::wstring(L"0kK Pi*\t\u00E9"))
        EXPECT_FALSE(typed.TakesKey(key, L"")) << static_cast<int>(key);
    EXPECT_TRUE(typed.TakesKey(L'a', std::wstring(198, L'a')));
    EXPECT_FALSE(typed.TakesKey(L'b', std::wstring(199, L'b')));
    EXPECT_EQ(typed.LastGood(), std::wstring(198, L'a'));
    EXPECT_TRUE(typed.TakesKey(L'\b', std::wstring(199, L'b')));

    EXPECT_EQ(typed.Changed(L"axb8=Q+!"), L"axb8=Q+!");
    EXPECT_EQ(typed.Changed(L"axb8=Q+!?"), L"axb8=Q+!") << "too long";
    EXPECT_EQ(typed.Changed(L"Nf3 e5"), L"") << "a blank empties it";
    EXPECT_EQ(typed.LastGood(), L"");

    typed.Begin(L"exd6ep!?+#");
    EXPECT_EQ(typed.Changed(L"exd6ep!?+#"), L"exd6ep!?+#") << "an entry that was longer";
    EXPECT_EQ(typed.Changed(L"exd6ep!?#"), L"exd6ep!?#") << "one character less";
    EXPECT_EQ(typed.Changed(L"exd6ep!!#"), L"exd6ep!?#") << "still too long, and no shorter";
}
