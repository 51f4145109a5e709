#include "app/Wakefulness.h"

#include "resources/resource.h"

#include <utility>

void Wakefulness::Show(Phase phase) {
    SetThreadExecutionState(ES_CONTINUOUS |
                            (phase == Phase::Running ? ES_SYSTEM_REQUIRED | ES_DISPLAY_REQUIRED : EXECUTION_STATE{0}));
}

void Wakefulness::OnPower(WPARAM event, Game& game, HWND window) {
    if (event == PBT_APMSUSPEND) {
        slept = game.PauseIfRunning() || slept;
    } else if (event == PBT_APMRESUMEAUTOMATIC || event == PBT_APMRESUMESUSPEND) {
        // Posted: the system waits for the answer.
        if (std::exchange(slept, false)) PostMessageW(window, WM_TELLSLEEP, 0, 0);
    }
}
