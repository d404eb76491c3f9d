// The key router runs synchronously on the key-capture thread, so its cost is what a key press
// waits for. BetterDisplay payloads are read against simdjson reading the same three fields.
#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <string_view>

#include "hud/better_display_osd.h"
#include "hud/level_stepper.h"
#include "hud/media_key_router.h"

namespace {

using tindra::KeyModifiers;
using Key = tindra::SystemDefinedKeyEvent::Key;

constexpr std::string_view payload =
    R"({"controlTarget":"combinedBrightness","displayID":"2","maxValue":100,"value":62.5,)"
    R"("systemIconID":1,"uuid":"4C8A27D0-8B1E-4E54-9D71-4C0A0B6E2F11"})";

void BM_RouteKey(benchmark::State& state) {
  const tindra::MediaKeyContext context{true,
                                        true,
                                        true,
                                        true,
                                        tindra::BrightnessAccess::readOnly,
                                        tindra::KeyboardBacklightAccess::readWrite};
  const KeyModifiers modifiers = KeyModifiers::option() | KeyModifiers::shift();
  int code = 0;
  for (auto _ : state) {
    const auto key = tindra::enumFromRaw<tindra::SystemDefinedKeyEvent::Key>(code);
    benchmark::DoNotOptimize(
        tindra::MediaKeyRouter::decide(key, code % 2 == 0, false, modifiers, context));
    code = (code + 1) % 24;
  }
}
BENCHMARK(BM_RouteKey);

void BM_LevelStep(benchmark::State& state) {
  double level = 0.53;
  for (auto _ : state) {
    level = tindra::LevelStepper::step(level < 0.9, true, level);
    if (level >= 0.9) level = 0.03;
    benchmark::DoNotOptimize(level);
  }
}
BENCHMARK(BM_LevelStep);

void BM_BetterDisplayOSDParse(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tindra::BetterDisplayOSD::parse(payload));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * payload.size()));
}
BENCHMARK(BM_BetterDisplayOSDParse);

// Reference: simdjson's DOM parser on a pre-padded copy, reading the same fields.
void BM_SimdjsonSameFields(benchmark::State& state) {
  const simdjson::padded_string padded(payload);
  simdjson::dom::parser parser;
  for (auto _ : state) {
    simdjson::dom::element document;
    if (parser.parse(padded).get(document)) state.SkipWithError("simdjson failed");
    std::string_view target;
    double value = 0, max = 0;
    const bool failed = document["controlTarget"].get(target) || document["value"].get(value) ||
                        document["maxValue"].get(max);
    if (failed) state.SkipWithError("simdjson missed a field");
    benchmark::DoNotOptimize(target);
    benchmark::DoNotOptimize(value / max);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * payload.size()));
}
BENCHMARK(BM_SimdjsonSameFields);

}  // namespace

BENCHMARK_MAIN();
