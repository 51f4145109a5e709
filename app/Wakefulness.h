#pragma once

#include "games/Game.h"

#include <windows.h>

// Keeps the computer and its screen awake while the clock runs. Where it is sent to sleep nevertheless, no tick comes:
// the clock is paused, and the players are told when it is awake again.
class Wakefulness {
  public:
    static void Show(Phase phase);

    // A WM_POWERBROADCAST of the window, which is sent WM_TELLSLEEP.
    void OnPower(WPARAM event, Game& game, HWND window);

  private:
    bool slept = false;  // a clock that ran was paused for it
};
