#include "platform/Today.h"

#include <windows.h>

CalendarDate Today() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay};
}
