#include "app/ClockScorlet.h"

#include "clock/ClockLayout.h"
#include "platform/Dpi.h"

#include <algorithm>
#include <utility>

void ClockScorlet::Show() {
    if (scorlet) {
        if (IsIconic(scorlet->Window())) ShowWindow(scorlet->Window(), SW_RESTORE);
        SetForegroundWindow(scorlet->Window());
        return;
    }
    const std::wstring problem = Open();
    if (!problem.empty()) around.Boxes.Inform(scorlet->Window(), problem);
}

std::wstring ClockScorlet::Open() {
    if (scorlet) return {};
    const RECT place = PlaceBeside();
    auto opened = std::make_unique<frmScorlet>(around, game, clock.Window());
    std::wstring problem = opened->Open(place);
    scorlet = std::move(opened);
    return problem;
}

void ClockScorlet::GoToOtherWindow() {
    if (!scorlet) return;
    if (GetActiveWindow() == scorlet->Window())
        SetForegroundWindow(clock.Window());
    else
        Show();
}

// Right of the clock. Where the screen is too narrow for both, first the clock and then the Scorlet give way, down to
// their least sizes.
RECT ClockScorlet::PlaceBeside() const {
    const HWND window = clock.Window();
    const int dpi = DpiOf(window);
    const RECT screen = WorkArea(window);
    const LONG screenWidth = screen.right - screen.left;
    const SIZE size = frmScorlet::DesignSize(dpi);
    RECT area{};
    GetWindowRect(window, &area);
    if (!IsZoomed(window) && !IsIconic(window) && area.right + size.cx > screen.right) {
        const LONG width = area.right - area.left, height = area.bottom - area.top;
        const LONG narrowed = std::min(width, std::max(screenWidth - size.cx, LONG{Scaled(LeastWidth, dpi)}));
        const LONG left = std::max(std::min(screen.right - size.cx - narrowed, area.left), screen.left);
        SetWindowPos(window, nullptr, left, area.top, narrowed, MulDiv(height, narrowed, width),
                     SWP_NOZORDER | SWP_NOACTIVATE);
        GetWindowRect(window, &area);
    }
    const LONG width = std::min(size.cx, std::max(screen.right - area.right, LONG{Scaled(ScorletLeastWidth, dpi)}));
    // A narrow one has its lists below the board.
    const LONG screenHeight = screen.bottom - screen.top;
    const LONG height = width < size.cx ? screenHeight : std::min(size.cy, screenHeight);
    const LONG left = std::max(std::min(area.right, screen.right - width), screen.left);
    const LONG top = std::max(std::min(area.top, screen.bottom - height), screen.top);
    return {left, top, left + width, top + height};
}

void ClockScorlet::Close() {
    if (!scorlet) return;
    const std::wstring question = around.Wording(TextId::CloseScorletQuestion);
    // No is preselected: the key that presses the clock must not throw moves away.
    if (!around.Boxes.Ask(scorlet->Window(), question, false, TextId::CloseScorletTitle)) return;
    if (scorlet) DestroyWindow(scorlet->Window());
}

void ClockScorlet::Forget() {
    if (scorlet && !scorlet->Window()) scorlet.reset();
}
