#include "platform/WindowScroll.h"

#include <algorithm>

namespace {

constexpr int LinesOfNotch = 3;

// The scrolling along one axis that shows what lies from `from` to `to`, its beginning above all.
int ScrolledFor(LONG from, LONG to, LONG seen) { return from < 0 ? from : std::min(std::max(to - seen, 0L), from); }

}  // namespace

SIZE WindowScroll::Rest() const { return {std::max(content.cx - seen.cx, 0L), std::max(content.cy - seen.cy, 0L)}; }

void WindowScroll::Set(HWND of, SIZE all, SIZE visible, int lineStep) {
    window = of;
    content = all;
    seen = visible;
    step = lineStep;
    place = {std::min(place.x, Rest().cx), std::min(place.y, Rest().cy)};
    for (const int bar : {SB_HORZ, SB_VERT}) {
        const bool across = bar == SB_HORZ;
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = (across ? content.cx : content.cy) - 1;
        info.nPage = static_cast<UINT>(across ? seen.cx : seen.cy);
        info.nPos = across ? place.x : place.y;
        SetScrollInfo(window, bar, &info, TRUE);
    }
}

void WindowScroll::OnScroll(UINT message, int request) {
    const bool across = message == WM_HSCROLL;
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    GetScrollInfo(window, across ? SB_HORZ : SB_VERT, &info);
    const int page = std::max(static_cast<int>(info.nPage) - step, step);
    POINT wanted = place;
    LONG& value = across ? wanted.x : wanted.y;
    switch (request) {
        case SB_LINEUP: value -= step; break;
        case SB_LINEDOWN: value += step; break;
        case SB_PAGEUP: value -= page; break;
        case SB_PAGEDOWN: value += page; break;
        case SB_TOP: value = 0; break;
        case SB_BOTTOM: value = info.nMax; break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: value = info.nTrackPos; break;
        default: return;
    }
    ScrollTo(wanted);
}

bool WindowScroll::OnWheel(short delta) {
    const SIZE rest = Rest();
    const bool across = rest.cx > 0 && (rest.cy == 0 || GetKeyState(VK_SHIFT) < 0);
    if (rest.cx == 0 && rest.cy == 0) return false;
    wheelRest += delta * LinesOfNotch * step;
    const int pixels = wheelRest / WHEEL_DELTA;
    wheelRest -= pixels * WHEEL_DELTA;
    ScrollTo(across ? POINT{place.x - pixels, place.y} : POINT{place.x, place.y - pixels});
    return true;
}

void WindowScroll::BringIntoSight(const RECT& area) {
    ScrollTo(
        {place.x + ScrolledFor(area.left, area.right, seen.cx), place.y + ScrolledFor(area.top, area.bottom, seen.cy)});
}

void WindowScroll::ScrollTo(POINT wanted) {
    const SIZE rest = Rest();
    wanted = {std::clamp(wanted.x, 0L, rest.cx), std::clamp(wanted.y, 0L, rest.cy)};
    const int right = place.x - wanted.x, down = place.y - wanted.y;
    if (right == 0 && down == 0) return;
    place = wanted;
    SetScrollPos(window, SB_HORZ, place.x, TRUE);
    SetScrollPos(window, SB_VERT, place.y, TRUE);
    ScrollWindowEx(window, right, down, nullptr, nullptr, nullptr, nullptr,
                   SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}
