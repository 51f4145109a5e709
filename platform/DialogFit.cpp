#include "platform/DialogFit.h"

#include <algorithm>

DialogFit FitDialog(Extent design, int dpi, Extent room, int bar) {
    int percent = 100;
    const auto at = [&] { return dpi * percent / 100; };
    const auto size = [&] { return Extent{AtDpi(design.Width, at()), AtDpi(design.Height, at())}; };
    const auto tooLarge = [&] { return size().Width > room.Width || size().Height > room.Height; };
    while (tooLarge() && percent > LeastFit) percent -= FitStep;

    const auto [width, height] = size();
    // A scroll bar takes room, and may so make the other one needed.
    bool down = height > room.Height;
    const bool across = width + (down ? bar : 0) > room.Width;
    down = down || (across && height + bar > room.Height);
    return {at(),
            {std::min(width + (down ? bar : 0), room.Width), std::min(height + (across ? bar : 0), room.Height)},
            across,
            down};
}
