#pragma once

#include <windows.h>

#include <string>

// Puts a text on the clipboard. Returns 0, or why it is not there: ERROR_BUSY while another program holds it.
DWORD PutOnClipboard(HWND owner, const std::wstring& text);
