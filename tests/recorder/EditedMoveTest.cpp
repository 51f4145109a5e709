#include "recorder/EditedMove.h"

#include <gtest/gtest.h>

TEST(TypedMoveTest, KeysAndChanges) {
    EditedMove edited;
    for (wchar_t key : std::wstring(L"ahAHqrbnQN19oO-x=ep+#?!\b"))
        EXPECT_TRUE(edited.TakesKey(key, L"")) << static_cast<int>(key);
    for (wchar_t key : std::wstring(L"0kK Pi*\t\u00E9"))
        EXPECT_FALSE(edited.TakesKey(key, L"")) << static_cast<int>(key);
    EXPECT_TRUE(edited.TakesKey(L'a', std::wstring(198, L'a')));
    EXPECT_FALSE(edited.TakesKey(L'b', std::wstring(199, L'b')));
    EXPECT_EQ(edited.LastGood(), std::wstring(198, L'a'));
    EXPECT_TRUE(edited.TakesKey(L'\b', std::wstring(199, L'b')));

    EXPECT_EQ(edited.Changed(L"axb8=Q+!"), L"axb8=Q+!");
    EXPECT_EQ(edited.Changed(L"axb8=R+!"), L"axb8=R+!") << "as long as a move can be";
    EXPECT_EQ(edited.Changed(L"axb8=Q+!?"), L"axb8=R+!") << "too long";
    EXPECT_EQ(edited.Changed(L"Nf3 e5"), L"") << "a blank empties it";
    EXPECT_EQ(edited.LastGood(), L"");

    edited.Begin(L"exd6ep!?+#");
    EXPECT_EQ(edited.Changed(L"exd6ep!?+#"), L"exd6ep!?+#") << "an entry that was longer";
    EXPECT_EQ(edited.Changed(L"exd6ep!?#"), L"exd6ep!?#") << "one character less";
    EXPECT_EQ(edited.Changed(L"exd6ep!!#"), L"exd6ep!?#") << "still too long, and no shorter";
}
