// The stored Focus state and the lock-session record are read at every change and launch; both
// are small, so the cost is dominated by fixed overheads. Each is measured beside a reference in
// the same run: simdjson's DOM parser on the same text, and ICU's grapheme iterator alone.
#include <benchmark/benchmark.h>
#include <simdjson.h>
#include <unicode/brkiter.h>
#include <unicode/locid.h>

#include <memory>
#include <string>

#include "focus/focus_filter_state.h"
#include "lockscreen/lock_session_policy.h"

namespace {

const std::string focusText =
    R"({"isActive":true,"name":"Deep Work","symbol":"gamecontroller","updatedAt":1700000000.25})";
const std::string lockText =
    tindra::LockSessionPolicy::recordForBegin({}, {1700000000.5, "3F2A-0B1C", "14.5"}).encoded();
const std::string longName(60, 'x');

void BM_FocusStateDecode(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tindra::FocusFilterState::decode(focusText));
}
BENCHMARK(BM_FocusStateDecode);

void BM_LockRecordDecode(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tindra::LockSessionRecord::decode(lockText));
}
BENCHMARK(BM_LockRecordDecode);

void BM_SimdjsonParseLockRecord(benchmark::State& state) {
  simdjson::dom::parser parser;
  const simdjson::padded_string padded(lockText);
  for (auto _ : state) benchmark::DoNotOptimize(parser.parse(padded).error());
}
BENCHMARK(BM_SimdjsonParseLockRecord);

void BM_NormalizeLongName(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tindra::FocusFilterState::normalizedName(longName));
}
BENCHMARK(BM_NormalizeLongName);

void BM_NormalizeShortName(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tindra::FocusFilterState::normalizedName("Work"));
}
BENCHMARK(BM_NormalizeShortName);

void BM_IcuCharacterIteratorCreate(benchmark::State& state) {
  for (auto _ : state) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::BreakIterator> clusters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    benchmark::DoNotOptimize(clusters.get());
  }
}
BENCHMARK(BM_IcuCharacterIteratorCreate);

}  // namespace

BENCHMARK_MAIN();
