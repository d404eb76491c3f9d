// The forecast parser on a real "complete" document (115 kB, 79 steps), beside its own JSON
// reading alone and beside simdjson's DOM parser reading the same members, so the cost of the
// decoding and the step choice shows as a ratio.
#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include "base/json_reader.h"
#include "weather/met_forecast_parser.h"

namespace {

constexpr double kNow = 1652909400;  // 2022-05-18T21:30:00Z

const std::string& completeDocument() {
  static const std::string text = [] {
    // The build names the source folder: __FILE__ may be relative (ccache with a base_dir).
    std::ifstream file(std::filesystem::path(TINDRA_SOURCE_DIR) /
                       "core/weather/testdata/met-complete-2022-05-18.json");
    std::ostringstream bytes;
    bytes << file.rdbuf();
    if (bytes.str().empty()) {
      std::fprintf(stderr, "forecast fixture not found\n");
      std::exit(1);
    }
    return bytes.str();
  }();
  return text;
}

void ForecastParser(benchmark::State& state) {
  const std::string& text = completeDocument();
  for (auto _ : state) {
    auto snapshot = tindra::METForecastParser::parse(text, {59, 10}, kNow, kNow);
    benchmark::DoNotOptimize(snapshot);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void JSONReaderOnly(benchmark::State& state) {
  const std::string& text = completeDocument();
  for (auto _ : state) {
    auto value = tindra::JSONReader::parse(text);
    benchmark::DoNotOptimize(value);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

// simdjson's DOM, reading each step's time and temperature and the first symbol code.
void SimdjsonReference(benchmark::State& state) {
  const std::string& text = completeDocument();
  const simdjson::padded_string padded(text);
  simdjson::dom::parser parser;
  for (auto _ : state) {
    double sum = 0;
    std::size_t characters = 0;
    simdjson::dom::element root = parser.parse(padded);
    for (simdjson::dom::element step : root["properties"]["timeseries"].get_array()) {
      characters += std::string_view(step["time"].get_string()).size();
      double temperature = 0;
      if (step.at_pointer("/data/instant/details/air_temperature").get(temperature) ==
          simdjson::SUCCESS) {
        sum += temperature;
      }
      std::string_view code;
      if (step.at_pointer("/data/next_1_hours/summary/symbol_code").get(code) ==
          simdjson::SUCCESS) {
        characters += code.size();
      }
    }
    benchmark::DoNotOptimize(sum);
    benchmark::DoNotOptimize(characters);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

}  // namespace

BENCHMARK(ForecastParser);
BENCHMARK(JSONReaderOnly);
BENCHMARK(SimdjsonReference);
BENCHMARK_MAIN();
