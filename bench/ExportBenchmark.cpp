#include "bench/RandomGame.h"
#include "bench/Replay.h"
#include "games/ExportedGame.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

constexpr size_t HalfMoves = 300;

// The first random game that is long enough.
Recorder LongGame() {
    std::mt19937 random(1);
    while (true) {
        const std::string game = RandomGame(random, HalfMoves);
        if (std::ranges::count(game, ' ') == HalfMoves) return *RecordLine(game);
    }
}

// Three pawns become something, and then two Knights go out and home again.
Recorder ShuffledGame() {
    std::string game =
        "a2a4 b7b5 a4b5 a7a6 b5a6 g7g5 a6a7 g5g4 a7b8q g4g3 b2b4 g3h2 b4b5 h2g1q b5b6 g8f6 b6b7 f6g8 b7c8q g8f6 ";
    while (std::ranges::count(game, ' ') < static_cast<std::ptrdiff_t>(HalfMoves)) game += "b1c3 f6g8 c3b1 g8f6 ";
    return *RecordLine(game + "*");
}

void FindAndExportGame(benchmark::State& state) {
    const Recorder recorder = LongGame();
    for (auto _ : state) {
        const GameReading game = ReadGame(recorder.Lists(), recorder.Position());
        if (!game.Understood()) state.SkipWithError("not understood");
        benchmark::DoNotOptimize(ExportGame({}, game, "*"));
    }
}
BENCHMARK(FindAndExportGame)->Unit(benchmark::kMillisecond);

// Where no entry tells what its pawn has become, and the last position is none of the game.
void GiveGameUp(benchmark::State& state) {
    Recorder recorder = ShuffledGame();
    for (const Side side : BothSides) {
        for (size_t i = 0; i < recorder.List(side).Moves(); ++i) {
            const std::string text = recorder.List(side).Entries()[i].Text;
            recorder.Edit(side, i, text.substr(0, text.find('=')));
        }
    }
    for (auto _ : state) {
        const GameReading game = ReadGame(recorder.Lists(), Board());
        if (game.Understood()) state.SkipWithError("understood");
    }
}
BENCHMARK(GiveGameUp)->Unit(benchmark::kMillisecond);

}  // namespace
