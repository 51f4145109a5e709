#include "app/WindowPlaces.h"

#include "clock/ClockLayout.h"
#include "recorder/ScorletLayout.h"

#include <algorithm>

namespace {

Extent WindowOf(const Screen& screen, int width, int height, const Extent& frame) {
    const auto scaled = [&](int length) { return (length * screen.Dpi + 48) / 96; };
    return {std::min(scaled(width) + frame.Width, screen.WorkArea.Width),
            std::min(scaled(height) + frame.Height, screen.WorkArea.Height)};
}

// As it was designed, or larger in the same proportions on a large screen: up to all its height and half its width.
Extent WantedScorlet(Screen screen) {
    const Extent room{screen.WorkArea.Width / 2 - screen.ScorletFrame.Width,
                      screen.WorkArea.Height - screen.ScorletFrame.Height};
    screen.Dpi = std::max(screen.Dpi, std::min(room.Width * 96 / ScorletWidth, room.Height * 96 / ScorletHeight));
    return WindowOf(screen, ScorletWidth, ScorletHeight, screen.ScorletFrame);
}

bool Inside(const Box& box, const Box& area) {
    return box.Left >= area.Left && box.Top >= area.Top && box.Right() <= area.Right() && box.Bottom() <= area.Bottom();
}

}  // namespace

Extent LeastClock(const Screen& screen) { return WindowOf(screen, LeastWidth, LeastHeight, screen.ClockFrame); }

Extent LeastScorlet(const Screen& screen) {
    return WindowOf(screen, ScorletLeastWidth, ScorletLeastHeight, screen.ScorletFrame);
}

Box BroughtInto(const Box& box, const Box& area) {
    const int width = std::min(box.Width, area.Width), height = std::min(box.Height, area.Height);
    return {std::clamp(box.Left, area.Left, area.Right() - width),
            std::clamp(box.Top, area.Top, area.Bottom() - height), width, height};
}

bool BothInSight(const WindowPlaces& places, const Box& clockArea, const Box& scorletArea) {
    const auto& [clock, scorlet] = places;
    const bool apart = clock.Right() <= scorlet.Left || scorlet.Right() <= clock.Left ||
                       clock.Bottom() <= scorlet.Top || scorlet.Bottom() <= clock.Top;
    return apart && Inside(clock, clockArea) && Inside(scorlet, scorletArea);
}

Box PlaceClock(const Screen& screen) {
    const Box& area = screen.WorkArea;
    const Extent size = WindowOf(screen, DesignWidth, DesignHeight, screen.ClockFrame);
    return {area.Left + (area.Width - size.Width) / 2, area.Top + (area.Height - size.Height) / 2, size.Width,
            size.Height};
}

WindowPlaces PlaceBoth(const Screen& screen, const Box& clock) {
    const Box& area = screen.WorkArea;
    const Extent wanted = WantedScorlet(screen);
    const Extent least = LeastScorlet(screen);
    WindowPlaces places{BroughtInto(clock, area), {0, 0, wanted.Width, wanted.Height}};
    if (places.Clock.Width + wanted.Width > area.Width) {
        const int narrowed = std::max(LeastClock(screen).Width, area.Width - wanted.Width);
        // All the height makes the digits larger.
        places.Clock = {area.Left, area.Top, std::min(places.Clock.Width, narrowed), area.Height};
        places.Scorlet.Width = std::clamp(area.Width - places.Clock.Width, least.Width, wanted.Width);
        // A narrow one has its lists below the board.
        if (places.Scorlet.Width < wanted.Width) places.Scorlet.Height = area.Height;
    }
    places.Clock.Left =
        std::max(std::min(places.Clock.Left, area.Right() - wanted.Width - places.Clock.Width), area.Left);
    places.Scorlet.Left = places.Clock.Right();
    places.Scorlet.Top = places.Clock.Top;
    places.Scorlet = BroughtInto(places.Scorlet, area);
    return places;
}
