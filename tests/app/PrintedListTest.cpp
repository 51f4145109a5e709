#include "app/PrintedList.h"

#include <gtest/gtest.h>

TEST(PrintedListTest, ColumnsStandSideBySide) {
    const std::wstring gap(34, L' '), wide(39, L'x'), almost(38, L'x');
    const auto expect = [&](const std::array<std::vector<std::wstring>, 2>& lists, const std::wstring& lines) {
        EXPECT_EQ(PrintedList({{L"WHITE", L"BLACK"}, L"Date"}, {L"Ay\u015fe", L"B"}, {24, 3, 9}, lists),
                  L"WHITE: Ay\u015fe\r\n\r\nBLACK: B\r\n\r\nDate: 09/03/0024\r\nWHITE" + gap + L"BLACK\r\n" + lines);
    };
    expect({}, L"");
    expect({{{L"1. e4", L"2. Nf3"}, {L"e5"}}}, L"1. e4" + gap + L"e5\r\n2. Nf3\r\n");
    expect({{{}, {L"e5"}}}, gap + L"     e5\r\n");
    expect({{{wide + L"x", wide, almost}, {L"a", L"b", L"c"}}},
           wide + L"xa\r\n" + wide + L"b\r\n" + almost + L" c\r\n");
}
