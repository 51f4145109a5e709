#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>

// The one-second timer. Its calls come between the messages of the thread that set it, even while a menu or a message
// box is open. The program has only one.
class TickTimer {
  public:
    explicit TickTimer(std::function<void()> tick);
    ~TickTimer();
    TickTimer(const TickTimer&) = delete;
    TickTimer& operator=(const TickTimer&) = delete;

    // Starts the timer. Returns the handle that SetTimer gave, 0 on failure.
    int32_t Set();

    // Ends the timer. Returns 1, or 0 on failure. Calls of an ended timer that are still on their way are dropped.
    int32_t Kill(int32_t handle);

  private:
    static void CALLBACK Procedure(HWND window, UINT message, UINT_PTR handle, DWORD time);

    // A timer without a window hands its procedure no context.
    static TickTimer* current;

    std::function<void()> tick;
    UINT_PTR running = 0;
};
