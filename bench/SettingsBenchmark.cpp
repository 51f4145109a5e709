#include "settings/SettingsRecord.h"

#include <benchmark/benchmark.h>

namespace {

Settings WithNames() {
    Settings settings;
    settings.PlayerNames = {"A player with a middling name", "Another one"};
    return settings;
}

void EncodeSettings(benchmark::State& state) {
    const Settings settings = WithNames();
    for (auto _ : state) benchmark::DoNotOptimize(EncodeRecord(EncodeSettings(settings)));
}
BENCHMARK(EncodeSettings);

void DecodeSettings(benchmark::State& state) {
    const std::string bytes = EncodeRecord(EncodeSettings(WithNames()));
    const std::span<const uint8_t> span(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    Settings settings;
    for (auto _ : state) {
        if (DecodeSettings(DecodeRecord(span), settings)) state.SkipWithError("refused");
        benchmark::DoNotOptimize(settings);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(DecodeSettings);

}  // namespace
