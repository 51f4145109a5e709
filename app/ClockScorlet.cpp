#include "app/ClockScorlet.h"

#include <utility>

void ClockScorlet::Show() {
    // Its own word that it is gone may still be on its way.
    Forget();
    if (scorlet) {
        if (IsIconic(scorlet->Window())) ShowWindow(scorlet->Window(), SW_RESTORE);
        SetForegroundWindow(scorlet->Window());
        return;
    }
    const std::wstring problem = Open();
    if (!problem.empty()) around.Boxes.Inform(scorlet->Window(), problem);
}

std::wstring ClockScorlet::Open() {
    Forget();
    if (scorlet) return {};
    const Box place = placer.MakeRoom(clock.Window());
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

void ClockScorlet::Close() {
    if (!scorlet) return;
    const std::wstring question = around.Wording(TextId::CloseScorletQuestion);
    // No is preselected: the key that presses the clock must not throw moves away.
    if (!around.Boxes.Ask(scorlet->Window(), question, false, TextId::CloseScorletTitle)) return;
    if (!scorlet) return;
    placer.TakeRoomBack(clock.Window(), scorlet->Window());
    DestroyWindow(scorlet->Window());
}

void ClockScorlet::Forget() {
    if (scorlet && !scorlet->Window()) scorlet.reset();
}
