#include "tests/desktop/Resources.h"
#include "tests/desktop/Steps.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

// Uses the real program for as long as TORVANIX_SOAK_SECONDS says, 60 without it. What it holds must be at the end what
// it was once everything had been used.

namespace {

// Fewer cycles than the least would not tell a leak.
constexpr int WarmUpCycles = 2, LeastCycles = 5, HelpEvery = 20;

// The system makes some objects once and late: the font of the first tool tip that is shown, for example.
constexpr size_t LateObjects = 3;
// How the heap lies is not the same twice; and Wine keeps 24 bytes of every static control that was given a font, some
// 250 of them in a cycle.
constexpr size_t HeapSlack = 256 << 10, KeptByWine = 16 << 10;

// Begins and ends with an idle clock, in English, without the Scorlet.
void Cycle(Steps& steps) {
    for (const char* part : {"first", "second", "third", "fourth", "fifth"}) steps.Do(std::string("soak-") + part);
}

Resources Count(Steps& steps) {
    // Messages that windows have sent to themselves are through, and programs that were started have ended.
    SendMessageW(steps.Program().Clock(), WM_NULL, 0, 0);
    Sleep(500);
    return CountResources(steps.Program().Process());
}

}  // namespace

TEST(SoakTest, HoldsAtTheEndWhatItHeldOnceAllWasUsed) {
    const char* wanted = std::getenv("TORVANIX_SOAK_SECONDS");
    const int seconds = wanted ? std::atoi(wanted) : 60;
    const ULONGLONG start = GetTickCount64();
    const auto elapsed = [&] { return static_cast<int>((GetTickCount64() - start) / 1000); };
    Steps steps;
    steps.Do("soak-start / soak-help");
    for (int i = 0; i < WarmUpCycles; ++i) Cycle(steps);
    const Resources before = Count(steps);
    std::cout << elapsed() << " s: " << before.Text() << std::endl;
    int cycles = 0;
    while (elapsed() < seconds || cycles < LeastCycles) {
        Cycle(steps);
        if (++cycles % HelpEvery != 0) continue;
        steps.Do("soak-help");
        std::cout << elapsed() << " s: " << Count(steps).Text() << std::endl;
    }
    const Resources after = Count(steps);
    std::cout << elapsed() << " s, " << cycles << " cycles: " << after.Text() << std::endl;
    const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    EXPECT_LE(after.Gdi, before.Gdi + LateObjects);
    EXPECT_LE(after.User, before.User + LateObjects);
    EXPECT_LE(after.Handles, before.Handles + LateObjects);
    EXPECT_LE(after.PrivateBytes,
              before.PrivateBytes + HeapSlack + (wine ? static_cast<size_t>(cycles) * KeptByWine : 0));
    EXPECT_LE(after.TemporaryFiles, before.TemporaryFiles);
    steps.Do(
        "soak-game / command mnuPause / soak-save end / close frmClock / ended 0 / soak-start / soak-load end / "
        "soak-same end");
}
