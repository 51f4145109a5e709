#pragma once

#include "clock/modClock.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <utility>

// The one-second timer. Its calls come between the messages of the thread that set it, also while a menu or a message
// box is open. There is one of it in the program.
class TickTimer final : public modClock::Timer {
  public:
    TickTimer() { current = this; }
    ~TickTimer();
    TickTimer(const TickTimer&) = delete;
    TickTimer& operator=(const TickTimer&) = delete;

    // What is called at each second. It must let no exception out: the system calls it.
    void Calls(std::function<void()> function) { tick = std::move(function); }

    // Starts it; the handle as SetTimer gives it, 0 on failure.
    int32_t Set() override;

    // Ends it; 1, or 0 on failure. Calls of an ended timer that are still under way are dropped.
    int32_t Kill(int32_t handle) override;

  private:
    static void CALLBACK Procedure(HWND window, UINT message, UINT_PTR handle, DWORD time);

    // A timer without a window hands its procedure no context.
    static TickTimer* current;

    std::function<void()> tick;
    UINT_PTR running = 0;
};
