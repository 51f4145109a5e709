#pragma once

#include <windows.h>

#include <commctrl.h>

// A SUBCLASSPROC that removes itself in time: SetWindowSubclass wants every subclass removed before its window is gone.
template <SUBCLASSPROC Procedure>
LRESULT CALLBACK UntilDestroyed(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, UntilDestroyed<Procedure>, id);
    return Procedure(window, message, wParam, lParam, id, data);
}

// Lets a procedure see the messages of a control for as long as the control lives.
template <SUBCLASSPROC Procedure>
void Subclass(HWND control, const void* data = nullptr, UINT_PTR id = 0) {
    SetWindowSubclass(control, UntilDestroyed<Procedure>, id, reinterpret_cast<DWORD_PTR>(data));
}
