#include "clock/modClock.h"

#include <benchmark/benchmark.h>

namespace {

struct SilentHost : modClock::ClockHost {
    int32_t SetTimer() override { return 32767; }
    int32_t KillTimer(int32_t) override { return 1; }
    void FaceChanged(Side) override {}
    void MoveNumbersChanged() override {}
    void FlagFell(Side) override {}
};

// A Fischer game that runs for as long as a benchmark does.
TimeControl LongGame(bool down) {
    TimeControl control;
    control.CountTimeDown = down;
    control.PeriodLimit.fill(2'000'000'000);
    control.SecondPeriodTime.fill(1800);
    control.SecondPeriodEnabled = true;
    return control;
}

void Tick(benchmark::State& state) {
    SilentHost host;
    modClock::Clock clock(host);
    clock.SetTimeControl(LongGame(state.range(0) != 0));
    clock.InitialiseClock();
    clock.PressClock(Black);
    for (auto _ : state) clock.ClockTick();
}
BENCHMARK(Tick)->ArgName("down")->Arg(1)->Arg(0);

void Press(benchmark::State& state) {
    SilentHost host;
    modClock::Clock clock(host);
    clock.SetTimeControl(LongGame(true));
    clock.InitialiseClock();
    clock.PressClock(Black);
    for (auto _ : state) clock.PressClock(clock.TurnSide());
}
BENCHMARK(Press);

}  // namespace
