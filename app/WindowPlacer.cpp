#include "app/WindowPlacer.h"

#include "platform/Dpi.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/SystemError.h"

#include <utility>

namespace {

constexpr size_t LongestFile = 1000;

Box BoxOf(const RECT& area) {
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right - area.left),
            static_cast<int>(area.bottom - area.top)};
}

Extent FrameFor(bool menu, int dpi) {
    const RECT frame = FrameOf(WS_OVERLAPPEDWINDOW, menu, dpi);
    return {static_cast<int>(frame.right - frame.left), static_cast<int>(frame.bottom - frame.top)};
}

Screen ScreenOf(HWND clock) {
    const int dpi = DpiOf(clock);
    return {BoxOf(WorkArea(clock)), dpi, FrameFor(true, dpi), FrameFor(false, dpi)};
}

// Where a window is while it is neither maximised nor minimised.
Box PlaceOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    if (!IsIconic(window) && !IsZoomed(window)) return BoxOf(area);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    GetWindowPlacement(window, &placement);
    // These coordinates begin at the work area.
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    OffsetRect(&placement.rcNormalPosition, monitor.rcWork.left - monitor.rcMonitor.left,
               monitor.rcWork.top - monitor.rcMonitor.top);
    return BoxOf(placement.rcNormalPosition);
}

void PutAt(HWND window, const Box& place) {
    if (IsZoomed(window)) ShowWindow(window, SW_SHOWNOACTIVATE);
    SetWindowPos(window, nullptr, place.Left, place.Top, place.Width, place.Height, SWP_NOZORDER | SWP_NOACTIVATE);
}

Box WorkAreaOf(HMONITOR screen) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(screen, &monitor);
    return BoxOf(monitor.rcWork);
}

bool OnAScreen(const Box& place) {
    const RECT area{place.Left, place.Top, place.Right(), place.Bottom()};
    return MonitorFromRect(&area, MONITOR_DEFAULTTONULL) != nullptr;
}

std::optional<KeptPlaces> Read(const std::wstring& file) {
    try {
        const auto bytes = ReadFileBytes(file, LongestFile);
        return bytes ? ReadPlaces(std::string(bytes->begin(), bytes->end())) : std::nullopt;
    } catch (const SystemError&) {
        return std::nullopt;
    }
}

}  // namespace

bool WindowPlacer::PlaceClock(HWND clock, bool besideScorlet) {
    left = Read(file);
    if (left && OnAScreen(left->Alone)) {
        PutAt(clock, left->Alone);
        // Another screen may have another resolution, to which the window has just gone over.
        if (DpiOf(clock) == left->Dpi)
            PutAt(clock, BroughtInto(left->Alone, ScreenOf(clock).WorkArea));
        else
            left.reset();
    } else {
        left.reset();
    }
    if (!left) PutAt(clock, ::PlaceClock(ScreenOf(clock)));
    if (besideScorlet) {
        const Box scorlet = MakeRoom(clock);
        planned = WindowPlaces{PlaceOf(clock), scorlet};
        // It will be maximised again when the Scorlet closes.
        if (left && left->Maximised) {
            if (!room) room = Room{PlaceOf(clock), PlaceOf(clock), false};
            room->Maximised = true;
        }
    }
    return left && left->Maximised && !besideScorlet;
}

std::optional<WindowPlaces> WindowPlacer::LeftBeside(const Box& clock, const Box& workArea) const {
    if (!left || !left->Both) return std::nullopt;
    for (const WindowPlaces& places : {WindowPlaces{clock, left->Both->Scorlet}, *left->Both}) {
        const Box& scorlet = places.Scorlet;
        const RECT area{scorlet.Left, scorlet.Top, scorlet.Right(), scorlet.Bottom()};
        const HMONITOR screen = MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST);
        if (BothInSight(places, workArea, WorkAreaOf(screen))) return places;
    }
    return std::nullopt;
}

Box WindowPlacer::MakeRoom(HWND clock) {
    if (const auto plan = std::exchange(planned, std::nullopt); plan && plan->Clock == PlaceOf(clock))
        return plan->Scorlet;
    const Screen screen = ScreenOf(clock);
    const bool maximised = IsZoomed(clock);
    const Box before = maximised ? screen.WorkArea : PlaceOf(clock);
    const WindowPlaces places = LeftBeside(before, screen.WorkArea).value_or(PlaceBoth(screen, before));
    room.reset();
    if (!IsIconic(clock) && places.Clock != before) {
        room = Room{PlaceOf(clock), places.Clock, maximised};
        PutAt(clock, places.Clock);
    }
    return places.Scorlet;
}

void WindowPlacer::TakeRoomBack(HWND clock, HWND scorlet) {
    const Box now = PlaceOf(clock);
    if (!left) left = KeptPlaces{};
    left->Both = WindowPlaces{now, PlaceOf(scorlet)};
    const auto given = std::exchange(room, std::nullopt);
    if (!given || given->After != now || IsZoomed(clock) || IsIconic(clock)) return;
    PutAt(clock, BroughtInto(given->Before, ScreenOf(clock).WorkArea));
    if (given->Maximised) ShowWindow(clock, SW_MAXIMIZE);
}

void WindowPlacer::OnScreenChanged(HWND clock, HWND scorlet) {
    const auto bringBack = [](HWND window) {
        if (IsIconic(window) || IsZoomed(window)) return;
        const Box place = PlaceOf(window), inside = BroughtInto(place, BoxOf(WorkArea(window)));
        if (inside != place) PutAt(window, inside);
    };
    const bool together =
        scorlet && !IsIconic(clock) && !IsZoomed(clock) && !IsIconic(scorlet) && !IsZoomed(scorlet) &&
        MonitorFromWindow(clock, MONITOR_DEFAULTTONEAREST) == MonitorFromWindow(scorlet, MONITOR_DEFAULTTONEAREST);
    if (together) {
        const Screen screen = ScreenOf(clock);
        if (BothInSight({PlaceOf(clock), PlaceOf(scorlet)}, screen.WorkArea, screen.WorkArea)) return;
        const WindowPlaces places = PlaceBoth(screen, PlaceOf(clock));
        PutAt(clock, places.Clock);
        PutAt(scorlet, places.Scorlet);
    } else {
        bringBack(clock);
        if (scorlet) bringBack(scorlet);
    }
}

void WindowPlacer::Keep(HWND clock, HWND scorlet) {
    const Box now = PlaceOf(clock);
    const bool hasMadeRoom = scorlet && room && room->After == now;
    KeptPlaces places{DpiOf(clock), hasMadeRoom ? room->Before : now,
                      hasMadeRoom ? room->Maximised : IsZoomed(clock) != FALSE, left ? left->Both : std::nullopt};
    if (scorlet) places.Both = WindowPlaces{now, PlaceOf(scorlet)};
    try {
        ReplaceFileBytes(file, WritePlaces(places));
    } catch (const SystemError&) {
        // The next start will place the windows anew.
    }
}

void WindowPlacer::LimitClock(HWND clock, MINMAXINFO& info) {
    const Extent least = LeastClock(ScreenOf(clock));
    info.ptMinTrackSize = {least.Width, least.Height};
}
