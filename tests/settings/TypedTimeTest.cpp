#include "settings/TypedTime.h"

#include "tests/base/Rows.h"

namespace {

// What a bar of a first period shows after each key, "<" for a backspace, "." for a new beginning and "+" for its own
// small step; "!" for a key that is not taken.
std::string Typed(const std::string& keys) {
    TypedTime typed;
    int32_t shown = 20;
    std::string text;
    for (const char key : keys) {
        if (key == '.') {
            typed.End();
            continue;
        }
        if (key == '+') ++shown;
        const auto value =
            key == '+' ? shown : typed.Type(key == '<' ? L'\b' : static_cast<wchar_t>(key), FirstPeriodScale, shown);
        shown = value.value_or(shown);
        text += value ? std::to_string(shown) + " " : "! ";
    }
    return text;
}

}  // namespace

TEST(TypedTimeTest, DigitsSetATimeAndBackspaceCorrectsIt) {
    ExpectRows(Typed, R"(
        90 => 9 90 | 180 => 1 18 180 | 181 => 1 18 ! | 1811 => 1 18 ! ! | 1:30 => 1 60 63 90 | 2:59 => 2 120 125 179
        3:01 => 3 180 180 ! | 0:45 => 1 1 4 45 | 000007 => 1 1 1 1 1 7 | 0000007 => 1 1 1 1 1 1 !
        No time.
        : => ! | 1:6 => 1 60 ! | 1:: => 1 60 ! | 1:234 => 1 60 62 83 ! | x-5 => ! ! 5
        Backspaces, of what was typed and of what is shown.
        90<5 => 9 90 9 95 | 1:30<<<< => 1 60 63 90 63 60 1 1 | < => 2 | <<<7 => 2 1 1 7
        A new time begins after another change and where one has ended.
        9+5 => 9 10 5 | 9.5 => 9 5 | 9.<3 => 9 1 3)");
}
