#include "platform/FilteredEdit.h"

#include "platform/Subclass.h"

#include <algorithm>

namespace {
// Beside the subclass that a form may have of its own.
constexpr UINT_PTR FilterSubclass = 1;
}  // namespace

void FilteredEdit::Attach() {
    if (takesKey) Subclass<Procedure>(form.Control(id), this, FilterSubclass);
}

void FilteredEdit::OnChange() {
    if (settingText) return;
    const std::wstring text = form.Text(id), kept = changed(text);
    if (kept == text) return;
    const HWND field = form.Control(id);
    // What is after the caret stays after it.
    DWORD end = 0;
    SendMessageW(field, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&end));
    const auto caret = static_cast<LPARAM>(end) - static_cast<LPARAM>(text.size()) + static_cast<LPARAM>(kept.size());
    settingText = true;
    SetWindowTextW(field, kept.c_str());
    settingText = false;
    SendMessageW(field, EM_SETSEL, static_cast<WPARAM>(std::max(caret, LPARAM{0})), std::max(caret, LPARAM{0}));
}

LRESULT CALLBACK FilteredEdit::Procedure(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR self) {
    const auto& edit = *reinterpret_cast<const FilteredEdit*>(self);
    const auto character = static_cast<wchar_t>(wParam);
    if (message == WM_CHAR && character >= L' ' && !edit.takesKey(character, edit.form.Text(edit.id))) return 0;
    return DefSubclassProc(field, message, wParam, lParam);
}
