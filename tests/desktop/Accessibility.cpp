#include "tests/desktop/Accessibility.h"

#include "platform/Handles.h"
#include "tests/desktop/Desktop.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <array>
#include <vector>

namespace {

bool IsKind(HWND control, const wchar_t* kind) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(control, name.data(), static_cast<int>(name.size()));
    return lstrcmpiW(name.data(), kind) == 0;
}

DWORD StyleOf(HWND control) { return static_cast<DWORD>(GetWindowLongPtrW(control, GWL_STYLE)); }

bool IsGroup(HWND control) { return IsKind(control, L"BUTTON") && (StyleOf(control) & BS_TYPEMASK) == BS_GROUPBOX; }

// Not every system's library knows the rule for every kind of field.
std::wstring LabelBefore(HWND control) {
    if (!IsKind(control, L"COMBOBOX") && !IsKind(control, L"LISTBOX")) return {};
    const HWND before = GetWindow(control, GW_HWNDPREV);
    return before && IsKind(before, L"STATIC") && StyleOf(before) & WS_VISIBLE ? TextOf(before) : std::wstring();
}

std::vector<HWND> ShownControls(HWND form) {
    std::vector<HWND> controls;
    for (HWND control = GetWindow(form, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        // The form itself may not be shown yet.
        if (StyleOf(control) & WS_VISIBLE) controls.push_back(control);
    }
    return controls;
}

RECT AreaOf(HWND control) {
    RECT area{};
    GetWindowRect(control, &area);
    return area;
}

}  // namespace

std::wstring SpokenName(HWND control) {
    // For what comes from another process.
    static const HRESULT library = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    void* pointer = nullptr;
    if (FAILED(library) ||
        FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &pointer)))
        return {};
    const UniqueCom<IAccessible> object(static_cast<IAccessible*>(pointer));
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    const std::wstring text = name ? name : L"";
    SysFreeString(name);
    return text;
}

void ExpectNamed(HWND form) {
    for (const HWND control : ShownControls(form))
        EXPECT_FALSE(SpokenName(control).empty() && LabelBefore(control).empty()) << GetDlgCtrlID(control);
}

void ExpectReadingOrder(HWND form) {
    const std::vector<HWND> controls = ShownControls(form);
    for (size_t i = 0; i < controls.size(); ++i) {
        const RECT first = AreaOf(controls[i]);
        for (size_t j = i + 1; j < controls.size(); ++j) {
            const RECT second = AreaOf(controls[j]);
            const bool oneRow = second.top < first.bottom && first.top < second.bottom;
            const bool oneColumn = second.left < first.right && first.left < second.right;
            const bool back = (oneRow && second.right <= first.left) || (oneColumn && second.bottom <= first.top);
            EXPECT_FALSE(back) << GetDlgCtrlID(controls[i]) << " comes before " << GetDlgCtrlID(controls[j]);
            RECT both{};
            const bool held = IntersectRect(&both, &first, &second) && EqualRect(&both, &first);
            EXPECT_FALSE(IsGroup(controls[j]) && held)
                << GetDlgCtrlID(controls[i]) << " comes before its group " << GetDlgCtrlID(controls[j]);
        }
    }
}
