#include "platform/Today.h"

CalendarDate Today() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay};
}

std::wstring DateAndTime(const SYSTEMTIME& time) {
    wchar_t date[80], clock[80];
    if (!GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, date, 80)) date[0] = L'\0';
    if (!GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &time, nullptr, clock, 80)) clock[0] = L'\0';
    return std::wstring(date) + L" " + clock;
}
