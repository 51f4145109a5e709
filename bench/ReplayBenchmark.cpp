#include "bench/Replay.h"
#include "recorder/RecordHistory.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> Games() {
    std::vector<std::string> lines;
    for (const char* name : {"kasparov-deep-blue-1997.moves", "world-championship-2023-game1.moves"}) {
        std::ifstream file(std::string(TEST_DATA "/") + name);
        for (std::string line; std::getline(file, line);) lines.push_back(line);
    }
    return lines;
}

// Replays real games and writes their moves; the items counted are moves.
void ReplayGames(benchmark::State& state) {
    const std::vector<std::string> games = Games();
    int64_t moves = 0;
    for (const std::string& game : games) moves += std::count(game.begin(), game.end(), ' ');
    std::string written;
    for (auto _ : state) {
        written.clear();
        for (const std::string& game : games) {
            if (!ReplayLine(game, written)) state.SkipWithError("malformed");
        }
        benchmark::DoNotOptimize(written.data());
    }
    state.SetItemsProcessed(state.iterations() * moves);
}
BENCHMARK(ReplayGames);

// A game of 300 moves, the argument telling whether there is a check after each half-move, which is a step of its own.
// The bytes are those that the steps take; the items counted are steps.
void StepsOfALongGame(benchmark::State& state) {
    const bool checks = state.range(0) != 0;
    constexpr std::array there{"g1f3", "g8f6"}, back{"f3g1", "f6g8"};
    size_t bytes = 0;
    for (auto _ : state) {
        const size_t before = mallinfo2().uordblks;
        Recorder record;
        RecordHistory history;
        for (size_t half = 0; half < 600; ++half) {
            const std::string move = (half % 4 < 2 ? there : back)[half % 2];
            record.Play(SquareNamed(move.substr(0, 2)), SquareNamed(move.substr(2)));
            history.Changed(record, {});
            if (!checks) continue;
            record.Declare(Declaration::Check, {});
            history.Changed(record, {});
        }
        bytes = mallinfo2().uordblks - before;
        benchmark::DoNotOptimize(record.LastMove());
    }
    state.counters["bytes"] = static_cast<double>(bytes);
    state.SetItemsProcessed(state.iterations() * (checks ? 1200 : 600));
}
BENCHMARK(StepsOfALongGame)->Arg(0)->Arg(1);

}  // namespace
