#include "platform/Clipboard.h"

#include <cstring>

DWORD PutOnClipboard(HWND owner, const std::wstring& text) {
    if (!OpenClipboard(owner)) return ERROR_BUSY;
    EmptyClipboard();
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    DWORD code = 0;
    if (const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes)) {
        std::memcpy(GlobalLock(memory), text.c_str(), bytes);
        GlobalUnlock(memory);
        if (!SetClipboardData(CF_UNICODETEXT, memory)) {
            code = GetLastError();
            GlobalFree(memory);
        }
    } else {
        code = ERROR_NOT_ENOUGH_MEMORY;
    }
    CloseClipboard();
    return code;
}
