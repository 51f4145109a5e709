#include "app/ClockScorlet.h"

#include "clock/ClockLayout.h"
#include "platform/Dpi.h"

#include <algorithm>
#include <utility>

ClockScorlet::ClockScorlet(const Form& clock, ClockCommands& commands, const Texts& texts,
                           const MessageBoxes& messageBoxes, std::function<void()> changed, std::function<void()> print)
    : clock(clock),
      commands(commands),
      texts(texts),
      messageBoxes(messageBoxes),
      changed(std::move(changed)),
      print(std::move(print)) {}

void ClockScorlet::Show() {
    if (scorlet) {
        if (IsIconic(scorlet->Window())) ShowWindow(scorlet->Window(), SW_RESTORE);
        SetForegroundWindow(scorlet->Window());
        return;
    }
    const std::wstring problem = Open();
    if (!problem.empty()) messageBoxes.Inform(scorlet->Window(), problem);
}

std::wstring ClockScorlet::Open() {
    if (scorlet) return {};
    const RECT place = PlaceBeside();
    ScorletHost& host = *this;
    auto opened = std::make_unique<frmScorlet>(host, texts, messageBoxes);
    std::wstring problem = opened->Open(place);
    scorlet = std::move(opened);
    changed();
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
    const LONG height = std::min(size.cy, screen.bottom - screen.top);
    const LONG left = std::max(std::min(area.right, screen.right - width), screen.left);
    const LONG top = std::max(std::min(area.top, screen.bottom - height), screen.top);
    return {left, top, left + width, top + height};
}

void ClockScorlet::CloseScorlet() {
    if (!scorlet) return;
    if (!messageBoxes.Ask(scorlet->Window(), texts(TextId::CloseScorletQuestion), true, TextId::CloseScorletTitle))
        return;
    if (scorlet) DestroyWindow(scorlet->Window());
}

void ClockScorlet::ScorletDestroyed() {
    // The form is still in use up the stack; it is given up when this message is done.
    PostMessageW(clock.Window(), WM_FORGETSCORLET, 0, 0);
}

void ClockScorlet::Forget() {
    if (scorlet && !scorlet->Window()) scorlet.reset();
    changed();
}

void ClockScorlet::MoveBegun(bool firstPress, Side running) {
    if (!scorlet) return;
    if (const auto line = scorlet->Record().AddLineForPress(firstPress, running)) scorlet->ShowRecord(line);
}

void ClockScorlet::RecordFlagFall(Side side) {
    if (!scorlet) return;
    scorlet->Record().FlagFell(side);
    scorlet->ShowRecord();
}

void ClockScorlet::PressEnabledClock() {
    for (Side side : BothSides) {
        if (commands.ClockButtonEnabled(side)) return commands.Press(side);
    }
    if (commands.CurrentPhase() == Phase::Fallen) commands.Press(White);
}
