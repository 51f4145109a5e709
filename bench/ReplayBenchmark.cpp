#include "bench/Replay.h"

#include <benchmark/benchmark.h>

#include <algorithm>
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

}  // namespace
