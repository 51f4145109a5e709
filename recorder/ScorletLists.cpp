#include "recorder/ScorletLists.h"

#include "platform/Ansi.h"
#include "platform/Colours.h"
#include "platform/Look.h"
#include "platform/Painting.h"
#include "platform/Subclass.h"
#include "resources/resource.h"

#include <algorithm>
#include <utility>

namespace {

constexpr Colour RowColour{ColourOf(Look::Sheet), COLOR_WINDOW}, ChosenColour{ColourOf(Look::Chosen), COLOR_HIGHLIGHT};
constexpr Colour Ink{ColourOf(Look::Ink), COLOR_WINDOWTEXT}, QuietInk{ColourOf(Look::QuietInk), COLOR_WINDOWTEXT};
constexpr Colour ChosenInk{ColourOf(Look::Ink), COLOR_HIGHLIGHTTEXT};
constexpr Colour ChosenBeforeColour{ColourOf(Look::Tray), COLOR_BTNFACE},
    ChosenBeforeInk{ColourOf(Look::Ink), COLOR_BTNTEXT};

// Whether a message of a list is the choice of a row.
bool ChoosesRow(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONUP) return HIWORD(SendMessageW(list, LB_ITEMFROMPOINT, 0, lParam)) == 0;
    if (message != WM_KEYDOWN) return false;
    return wParam == VK_UP || wParam == VK_DOWN || wParam == VK_HOME || wParam == VK_PRIOR || wParam == VK_NEXT;
}

}  // namespace

void ScorletLists::Create() {
    for (Side side : BothSides) {
        form.AddControl(WC_LISTBOXW, ControlOf(lstMoves, side),
                        WS_VISIBLE | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED |
                            LBS_HASSTRINGS | (side == Black ? WS_VSCROLL : 0));
        Subclass<Procedure>(List(side), this);
    }
}

HWND ScorletLists::List(Side side) const { return form.Control(ControlOf(lstMoves, side)); }

void ScorletLists::Show() const {
    for (Side side : BothSides) Fill(side, Rows());
    ShowLast();
}

void ScorletLists::ShowLast() const {
    for (Side side : BothSides) SendMessageW(List(side), LB_SETTOPINDEX, Rows() > 0 ? Rows() - 1 : 0, 0);
}

size_t ScorletLists::Rows() const {
    return std::max(recorder.List(White).Entries().size(), recorder.List(Black).Entries().size());
}

void ScorletLists::Fill(Side side, size_t rows) const {
    const HWND list = List(side);
    const auto count = static_cast<LRESULT>(recorder.List(side).Entries().size());
    const LRESULT chosen = SendMessageW(list, LB_GETCURSEL, 0, 0);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const std::wstring line = FromAnsi(recorder.List(side).Line(static_cast<size_t>(i), side));
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    }
    // A list that is scrolled can show only rows that it has, so the shorter one gets empty rows.
    if (rows > RowsThatFit()) {
        for (size_t i = recorder.List(side).Entries().size(); i < rows; ++i)
            SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    }
    if (count > 0 && chosen >= 0) SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(std::min(chosen, count - 1)), 0);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

size_t ScorletLists::RowsThatFit() const {
    RECT client{};
    GetClientRect(List(White), &client);
    const LRESULT height = SendMessageW(List(White), LB_GETITEMHEIGHT, 0, 0);
    return height > 0 ? static_cast<size_t>(client.bottom / height) : 0;
}

void ScorletLists::Choose(const ChosenLine& line) {
    SendMessageW(List(line.List), LB_SETCURSEL, line.Index, 0);
    Prefer(line.List);
}

void ScorletLists::Prefer(Side side) {
    if (std::exchange(latest, side) == side) return;
    for (Side each : BothSides) InvalidateRect(List(each), nullptr, FALSE);
}

void ScorletLists::ChooseNone() const {
    for (Side side : BothSides) SendMessageW(List(side), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
}

std::optional<size_t> ScorletLists::Chosen(Side side) const {
    const LRESULT chosen = SendMessageW(List(side), LB_GETCURSEL, 0, 0);
    const auto count = static_cast<LRESULT>(recorder.List(side).Entries().size());
    return chosen >= 0 && chosen < count ? std::optional(static_cast<size_t>(chosen)) : std::nullopt;
}

ChosenLines ScorletLists::Chosen() const {
    ChosenLines lines;
    for (Side side : BothSides) {
        const LRESULT chosen = SendMessageW(List(side), LB_GETCURSEL, 0, 0);
        if (chosen >= 0) lines[side] = static_cast<size_t>(chosen);
    }
    return lines;
}

std::optional<Side> ScorletLists::Step(bool forward) {
    const Side from = GetFocus() == List(White) ? White : Black, to = Other(from);
    const auto chosen = Chosen(from);
    if (!chosen) return std::nullopt;
    size_t index = *chosen;
    if (forward) {
        index += from == Black ? 1 : 0;
    } else if (from == White && index-- == 0) {
        return std::nullopt;
    }
    if (index >= recorder.List(to).Entries().size()) return std::nullopt;
    Choose({to, index});
    SetFocus(List(to));
    return to;
}

void ScorletLists::OnChoice(Side side) {
    if (!Chosen(side)) Choose({side, recorder.List(side).Entries().size() - 1});
    Prefer(side);
}

void ScorletLists::Draw(const DRAWITEMSTRUCT& item, Side side) const {
    const Buffered buffer(item);
    const RECT area = buffer.Area();
    const bool chosen = item.itemState & ODS_SELECTED, standsOut = chosen && side == latest;
    ::Fill(buffer.Dc(), area, standsOut ? ChosenColour : chosen ? ChosenBeforeColour : RowColour);
    const auto& entries = recorder.List(side).Entries();
    const auto index = static_cast<size_t>(item.itemID);
    if (index < entries.size()) {
        const Selection font(buffer.Dc(), reinterpret_cast<HGDIOBJ>(SendMessageW(item.hwndItem, WM_GETFONT, 0, 0)));
        const auto write = [&](const std::wstring& text, RECT place, UINT alignment, bool quiet) {
            SetTextColor(buffer.Dc(), standsOut ? ChosenInk : chosen ? ChosenBeforeInk : quiet ? QuietInk : Ink);
            DrawTextW(buffer.Dc(), text.c_str(), -1, &place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | alignment);
        };
        // The moves begin one below the other, whatever the number of digits before them.
        SIZE widest{};
        const std::wstring last = std::to_wstring(std::max(Rows(), size_t{99})) + L". ";
        GetTextExtentPoint32W(buffer.Dc(), last.c_str(), static_cast<int>(last.size()), &widest);
        const LONG edge = area.bottom / 8;
        RECT number{edge, 0, edge + widest.cx, area.bottom}, move{number.right, 0, area.right, area.bottom};
        const MoveEntry& entry = entries[index];
        if (!entry.IsResult()) write(std::to_wstring(entry.Number) + L". ", number, DT_RIGHT, true);
        write(FromAnsi(entry.Text), move, DT_LEFT, entry.IsWaiting());
    }
    if (item.itemState & ODS_FOCUS && !(item.itemState & ODS_NOFOCUSRECT)) DrawFocusRect(buffer.Dc(), &area);
}

// Scrolls the other list to the rows that this one shows.
void ScorletLists::Follow(HWND list) const {
    const HWND other = List(list == List(White) ? Black : White);
    const LRESULT top = SendMessageW(list, LB_GETTOPINDEX, 0, 0);
    if (SendMessageW(other, LB_GETTOPINDEX, 0, 0) != top)
        SendMessageW(other, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
}

LRESULT CALLBACK ScorletLists::Procedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR self) {
    const auto& lists = *reinterpret_cast<const ScorletLists*>(self);
    // The one bar of both is that of Black's list, and not every system turns the wheel of a list without one.
    if (message == WM_MOUSEWHEEL && list == lists.List(White))
        return SendMessageW(lists.List(Black), message, wParam, lParam);
    if (message == WM_KEYDOWN && (wParam == VK_LEFT || wParam == VK_RIGHT))
        return SendMessageW(lists.form.Window(), WM_LISTKEY, wParam, 0);
    const LRESULT result = DefSubclassProc(list, message, wParam, lParam);
    if (message == WM_KEYDOWN && wParam == VK_END) {
        SendMessageW(lists.form.Window(), WM_LISTKEY, wParam, 0);
    } else if (ChoosesRow(list, message, wParam, lParam)) {
        // Not every system tells it of a row that was chosen before.
        SendMessageW(lists.form.Window(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    switch (message) {
        // What can scroll a list: the bar, the wheel, keys, the mouse, which may be dragged past the edge, and
        // programs.
        case WM_VSCROLL:
        case WM_MOUSEWHEEL:
        case WM_KEYDOWN:
        case WM_CHAR:
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_TIMER:
        case LB_SETCURSEL:
        case LB_SETTOPINDEX: lists.Follow(list); break;
        default: break;
    }
    return result;
}
