#include "clock/modClock.h"

#include <benchmark/benchmark.h>

namespace {

struct SilentTimer final : modClock::Timer {
    int32_t Set() override { return 32767; }
    int32_t Kill(int32_t) override { return 1; }
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
    SilentTimer timer;
    modClock::Clock clock(timer);
    clock.InitialiseClock(LongGame(state.range(0) != 0));
    clock.PressClock(Black);
    for (auto _ : state) clock.ClockTick();
}
BENCHMARK(Tick)->ArgName("down")->Arg(1)->Arg(0);

void Press(benchmark::State& state) {
    SilentTimer timer;
    modClock::Clock clock(timer);
    clock.InitialiseClock(LongGame(true));
    clock.PressClock(Black);
    for (auto _ : state) clock.PressClock(clock.TurnSide());
}
BENCHMARK(Press);

}  // namespace
