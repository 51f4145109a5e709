#include "clock/TickTimer.h"

TickTimer* TickTimer::current = nullptr;

TickTimer::~TickTimer() {
    if (running) KillTimer(nullptr, running);
    current = nullptr;
}

int32_t TickTimer::Set() {
    running = SetTimer(nullptr, 0, 1000, Procedure);
    return static_cast<int32_t>(running);
}

int32_t TickTimer::Kill(int32_t handle) {
    running = 0;
    return KillTimer(nullptr, static_cast<UINT_PTR>(handle));
}

void CALLBACK TickTimer::Procedure(HWND, UINT, UINT_PTR handle, DWORD) {
    if (current && handle == current->running) current->tick();
}
