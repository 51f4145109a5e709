#include "app/PrintedList.h"

#include <gtest/gtest.h>

TEST(PrintedListTest, ColumnsStandSideBySide) {
    const PrintedLabels labels{{L"WHITE", L"BLACK"}, L"Date"};
    const std::wstring head =
        L"WHITE: Ay\u015fe\r\n\r\nBLACK: B\r\n\r\nDate: 09/03/2024\r\nWHITE" + std::wstring(34, L' ') + L"BLACK\r\n";
    const auto print = [&](std::vector<std::wstring> white, std::vector<std::wstring> black) {
        return PrintedList(labels, {L"Ay\u015fe", L"B"}, {2024, 3, 9}, {white, black});
    };
    EXPECT_EQ(print({}, {}), head);
    EXPECT_EQ(print({L"1. e4", L"2. Nf3"}, {L"e5"}), head + L"1. e4" + std::wstring(34, L' ') + L"e5\r\n2. Nf3\r\n");
    EXPECT_EQ(print({}, {L"e5"}), head + std::wstring(39, L' ') + L"e5\r\n") << "as many rows as the longer list";
    const std::wstring wide(45, L'x');
    EXPECT_EQ(print({wide, wide.substr(0, 39), wide.substr(0, 38)}, {L"a", L"b", L"c"}),
              head + wide + L"a\r\n" + wide.substr(0, 39) + L"b\r\n" + wide.substr(0, 38) + L" c\r\n");
}
