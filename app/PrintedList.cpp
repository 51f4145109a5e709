#include "app/PrintedList.h"

#include <algorithm>
#include <cwchar>

namespace {

constexpr size_t FirstColumn = 39;

std::wstring Row(std::wstring white, const std::wstring& black) {
    if (!black.empty() && white.size() < FirstColumn) white.resize(FirstColumn, L' ');
    return white + black + L"\r\n";
}

}  // namespace

std::wstring PrintedList(const PrintedLabels& labels, const std::array<std::wstring, 2>& names,
                         const CalendarDate& date, const std::array<std::vector<std::wstring>, 2>& columns) {
    std::wstring text;
    for (const Side side : BothSides) text += labels.Sides[side] + L": " + names[side] + L"\r\n\r\n";
    wchar_t day[40];
    std::swprintf(day, std::size(day), L"%02d/%02d/%04d", date.Day, date.Month, date.Year);
    text += labels.Date + L": " + day + L"\r\n";
    text += Row(labels.Sides[White], labels.Sides[Black]);
    for (size_t row = 0; row < std::max(columns[White].size(), columns[Black].size()); ++row) {
        const auto entry = [&](Side side) { return row < columns[side].size() ? columns[side][row] : std::wstring(); };
        text += Row(entry(White), entry(Black));
    }
    return text;
}
