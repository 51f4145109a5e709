#include "clock/ClockCommands.h"
#include "fuzz/Fuzz.h"
#include "games/ClockRecord.h"

namespace {

struct NoTimer final : modClock::Timer {
    int32_t Set() override { return 2; }
    int32_t Kill(int32_t) override { return 1; }
};

// Goes on with a loaded clock, which must not come below zero.
void PlayOn(const modClock::ClockState& loaded) {
    NoTimer timer;
    ClockCommands clock(timer);
    clock.WarnAt(10);
    clock.TakeLoadedGame(loaded);
    if (clock.CurrentPhase() != Phase::Fallen) clock.PauseOrResume();
    for (int i = 0; i < 6; ++i) {
        clock.Press(clock.Clock().TurnSide());
        clock.Tick();
        if (clock.CurrentPhase() != Phase::Running) return;
        for (const int32_t time : clock.Clock().State().PlayerTime) Require(time >= 0);
    }
}

}  // namespace

// A clock record that can be read is written and read as the same, and its game can go on.
int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ClockRecord saved, again;
    if (DecodeClockRecord({data, size}, Settings(), saved)) return 0;
    const std::string bytes = EncodeClockRecord(saved);
    Require(!DecodeClockRecord({reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()}, Settings(), again));
    Require(EncodeClockRecord(again) == bytes);
    PlayOn(again.Clock);
    return 0;
}
