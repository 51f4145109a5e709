#include "games/Cgn.h"
#include "games/Diagram.h"
#include "games/GameCodec.h"
#include "games/Pgn.h"

#include <benchmark/benchmark.h>

namespace {

constexpr CalendarDate Today{2024, 3, 9};
constexpr int Moves = 150;

// A game of 150 moves by each side: the Knights go out and home again.
Recorder LongGame() {
    constexpr std::array<std::pair<int, int>, 4> steps{{{71, 63}, {78, 66}, {63, 71}, {66, 78}}};
    Recorder recorder;
    for (size_t half = 0; half < 2 * Moves; ++half) {
        const auto& [origin, destination] = steps[half % steps.size()];
        recorder.Play(static_cast<Square>(origin), static_cast<Square>(destination));
    }
    return recorder;
}

Settings Options() {
    Settings settings;
    settings.PlayerNames = {"A player with a middling name", "Another one"};
    settings.WritePgn = true;
    return settings;
}

modClock::ClockState Clock() {
    modClock::ClockState clock;
    clock.Control = Options().Control;
    clock.PlayerTime = {300, 200};
    clock.MoveCount = {Moves, Moves};
    clock.GameStarted = true;
    return clock;
}

GameFiles Files() {
    const Recorder recorder = LongGame();
    return EncodeGame(Options(), Clock(), &recorder, Today);
}

std::vector<uint8_t> Bytes(const std::string& text) { return {text.begin(), text.end()}; }

// Writers are measured by what they write, readers by what they read.
template <typename Write>
void RunWriter(benchmark::State& state, Write write) {
    size_t bytes = 0;
    for (auto _ : state) {
        const std::string text = write();
        bytes += text.size();
        benchmark::DoNotOptimize(text.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(bytes));
}

template <typename Read>
void RunReader(benchmark::State& state, GameFile file, Read read) {
    const std::string text = *Files()[file];
    for (auto _ : state) {
        if (read(text)) state.SkipWithError("refused");
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void SaveGame(benchmark::State& state) {
    const Recorder recorder = LongGame();
    for (auto _ : state) benchmark::DoNotOptimize(EncodeGame(Options(), Clock(), &recorder, Today));
}
BENCHMARK(SaveGame);

void LoadGame(benchmark::State& state) {
    std::array<std::vector<uint8_t>, AllGameFiles.size()> files;
    for (const GameFile file : AllGameFiles) files[file] = Bytes(*Files()[file]);
    const GameFileReader read = [&](GameFile file, size_t) { return files[file]; };
    const Settings present;
    SavedGame game;
    for (auto _ : state) {
        if (DecodeGame(read, present, game)) state.SkipWithError("refused");
    }
}
BENCHMARK(LoadGame);

void WriteClockFile(benchmark::State& state) {
    const ClockRecord saved{Options(), Clock(), White, true};
    RunWriter(state, [&] { return EncodeClockRecord(saved); });
}
BENCHMARK(WriteClockFile);

void ReadClockFile(benchmark::State& state) {
    ClockRecord saved;
    RunReader(state, ClockFile, [&](const std::string& text) {
        return DecodeClockRecord({reinterpret_cast<const uint8_t*>(text.data()), text.size()}, Settings(), saved);
    });
}
BENCHMARK(ReadClockFile);

void WriteDiagramFile(benchmark::State& state) {
    const Recorder recorder = LongGame();
    RunWriter(state, [&] { return EncodeDiagram(recorder.Position()); });
}
BENCHMARK(WriteDiagramFile);

void ReadDiagramFile(benchmark::State& state) {
    Board board;
    RunReader(state, DiagramFile, [&](const std::string& text) { return DecodeDiagram(text, board); });
}
BENCHMARK(ReadDiagramFile);

void WriteMovesFile(benchmark::State& state) {
    const Recorder recorder = LongGame();
    const GameHead head{Today, Options().PlayerNames};
    RunWriter(state, [&] { return EncodeCgn(head, recorder.Lists()); });
}
BENCHMARK(WriteMovesFile);

void ReadMovesFile(benchmark::State& state) {
    MoveLists lists;
    RunReader(state, MovesFile, [&](const std::string& text) { return DecodeCgn(text, White, lists); });
}
BENCHMARK(ReadMovesFile);

void WritePgnFile(benchmark::State& state) {
    const Recorder recorder = LongGame();
    const GameHead head{Today, Options().PlayerNames};
    RunWriter(state, [&] { return EncodePgn(head, recorder); });
}
BENCHMARK(WritePgnFile);

void ReadPgnFile(benchmark::State& state) {
    std::string read;
    RunReader(state, PgnFile, [&](const std::string& text) { return DecodePgn(text, read); });
}
BENCHMARK(ReadPgnFile);

}  // namespace
