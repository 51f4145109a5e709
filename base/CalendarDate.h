#pragma once

struct CalendarDate {
    int Year, Month, Day;  // month and day from 1
};
