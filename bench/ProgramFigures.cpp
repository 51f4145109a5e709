#include "bench/FilesFigures.h"
#include "bench/PressFigures.h"
#include "bench/RunningProgram.h"
#include "games/GameStore.h"
#include "resources/resource.h"
#include "tests/desktop/Desktop.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>

// Measures the real program beside one that opens an empty window, and prints a table. See docs/performance.md.

namespace {

constexpr int Starts = 20, Presses = 1000, Keeps = 200, SavedGames = 5000;

std::wstring EmptyProgram() { return BuildFolder() + L"empty_window.exe"; }

void Row(const char* figure, const char* unit, double ours, double empty) {
    std::printf("| %s | %.1f %s | %.1f %s | %.2f |\n", figure, ours, unit, empty, unit, ours / empty);
    std::fflush(stdout);
}

void MeasureStart() {
    const Installed program(QuietSettings());
    std::array<std::vector<double>, 2> visible, ready;
    // The two take turns, so that whatever else the machine does affects both. The first start of each reads its file
    // from the disk.
    for (int i = 0; i <= Starts; ++i) {
        const RunningProgram ours(program.Path(), L"frmClock");
        const RunningProgram empty(EmptyProgram(), L"EmptyWindow");
        if (i == 0) continue;
        visible[0].push_back(ours.Visible());
        visible[1].push_back(empty.Visible());
        ready[0].push_back(ours.Ready());
        ready[1].push_back(empty.Ready());
    }
    Row("start to visible window, median", "ms", Percentile(visible[0], 50), Percentile(visible[1], 50));
    Row("start to drawn window, median", "ms", Percentile(ready[0], 50), Percentile(ready[1], 50));
}

void TimesRow(const char* figure, const std::vector<double>& times) {
    std::printf("| %s | median %.2f ms, 99 %% under %.2f ms | worst %.2f ms | |\n", figure, Percentile(times, 50),
                Percentile(times, 99), Percentile(times, 100));
    std::fflush(stdout);
}

void MeasureScorlet() {
    const Installed program(WithScorlet());
    std::vector<double> drawn;
    for (int i = 0; i < Starts; ++i) {
        const RunningProgram both(program.Path(), L"frmClock");
        const double idle = both.WaitIdle();
        both.WaitWindow(L"frmScorlet");
        drawn.push_back(idle - both.Visible());
    }
    TimesRow("visible clock to drawn Scorlet, from another process", drawn);
}

void MeasureMemory() {
    const Installed clock(QuietSettings()), scorlet(WithScorlet());
    const RunningProgram alone(clock.Path(), L"frmClock");
    const RunningProgram both(scorlet.Path(), L"frmClock");
    const RunningProgram empty(EmptyProgram(), L"EmptyWindow");
    both.WaitWindow(L"frmScorlet");
    Sleep(3000);
    const auto mebibytes = [](size_t bytes) { return static_cast<double>(bytes) / (1 << 20); };
    Row("working set, clock", "MB", mebibytes(alone.WorkingSet()), mebibytes(empty.WorkingSet()));
    Row("working set, clock and Scorlet", "MB", mebibytes(both.WorkingSet()), mebibytes(empty.WorkingSet()));
    Row("private bytes, clock", "MB", mebibytes(alone.PrivateBytes()), mebibytes(empty.PrivateBytes()));
    Row("private bytes, clock and Scorlet", "MB", mebibytes(both.PrivateBytes()), mebibytes(empty.PrivateBytes()));
}

// With and without the game being kept, by turns.
void MeasureKept() {
    constexpr int rounds = 4;
    std::array<std::vector<double>, 2> times;
    for (int round = 0; round < 2 * rounds; ++round) {
        const std::vector<double> some = MeasurePresses(Presses / rounds, round % 2 == 0);
        auto& all = times[round % 2];
        all.insert(all.end(), some.begin(), some.end());
    }
    TimesRow("press to changed face, within the process, the game being kept", times[0]);
    TimesRow("the same without keeping", times[1]);
    const KeepCosts costs = MeasureKeeping(Keeps);
    TimesRow("keeping a game once, on the window's thread", costs.Window);
    TimesRow("the same on the writer's thread, until it is on the disk", costs.Writer);
    std::printf("| bytes that it writes, %d moves of each side | %zu | | |\n", MovesOfKeptGame, costs.Bytes);
}

void MeasureFileDialog() {
    for (const int games : {10, SavedGames}) {
        const FilesTimes times = MeasureFiles(games);
        std::printf(
            "| file dialog with %d saved games | open %.0f ms, choose %.1f ms, save %.0f ms, delete %.0f ms | | |\n",
            games, times.Open, times.Choose, times.Save, times.Delete);
        std::fflush(stdout);
    }
}

double FileSize(const std::wstring& path) { return static_cast<double>(ReadFileText(path).size()) / (1 << 20); }

// One clock is left alone, to measure its processor time. Another is watched for its ticks, since watching costs time.
void MeasureRunning(int minutes) {
    const Installed first(QuietSettings()), second(QuietSettings());
    const RunningProgram alone(first.Path(), L"frmClock"), watched(second.Path(), L"frmClock");
    const RunningProgram empty(EmptyProgram(), L"EmptyWindow");
    // The windows are side by side, since one that is covered need not draw.
    const auto place = [](HWND window, int left, int top) {
        SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    place(alone.Window(), 0, 0);
    place(watched.Window(), 760, 0);
    place(empty.Window(), 0, 520);
    Sleep(2000);

    SendMessageW(alone.Window(), WM_COMMAND, mnuStart, 0);
    const double cpuBefore = alone.CpuTime(), emptyBefore = empty.CpuTime(), begun = Now();

    const double start = Now();
    SendMessageW(watched.Window(), WM_COMMAND, mnuStart, 0);
    const HWND face = GetDlgItem(watched.Window(), ControlOf(lblFace, White));
    std::wstring shown = TextOf(face);
    const int ticks = minutes * 60;
    std::vector<double> lateness;
    for (int tick = 1; tick <= ticks; ++tick) {
        const double due = start + 1000.0 * tick;
        // The face is looked at often only around the time at which it may change.
        if (const double early = due - 100 - Now(); early > 0) Sleep(static_cast<DWORD>(early));
        std::wstring text;
        while ((text = TextOf(face)) == shown) Sleep(1);
        lateness.push_back(Now() - due);
        shown = text;
    }
    const double seconds = (Now() - begun) / 1000;
    const double cpu = (alone.CpuTime() - cpuBefore) / seconds / 10;
    const double emptyCpu = (empty.CpuTime() - emptyBefore) / seconds / 10;
    std::printf(
        "| processor time of a running clock, %.0f s | %.3f %% of a core, %.0f ms a minute | %.3f %% of a core | |\n",
        seconds, cpu, cpu * 600, emptyCpu);
    std::printf("| drift of %d ticks | %.1f ms | | %.6f of a tick each |\n", ticks, lateness.back() - lateness.front(),
                (lateness.back() - lateness.front()) / 1000 / ticks);
    std::printf("| lateness of a tick | median %.1f ms, 99 %% under %.1f ms | worst %.1f ms | |\n",
                Percentile(lateness, 50), Percentile(lateness, 99), Percentile(lateness, 100));
}

}  // namespace

int main(int count, char** arguments) try {
    const int minutes = count > 1 ? std::atoi(arguments[1]) : 1;
    std::printf("| Figure | TORVANIX | Empty window | Ratio |\n| --- | --- | --- | --- |\n");
    MeasureStart();
    MeasureScorlet();
    MeasureMemory();
    Row("program file", "MB", FileSize(BuildFolder() + L"torvanix.exe"), FileSize(EmptyProgram()));
    MeasureKept();
    TimesRow("message to changed text of a bare control", MeasureBareControl(Presses));
    TimesRow("key sent to changed face, from another process", MeasureKeys(Presses));
    MeasureFileDialog();
    if (minutes > 0) MeasureRunning(minutes);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
