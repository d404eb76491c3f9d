// Our JSON reader beside simdjson's DOM parser on the two shapes the adapter stream carries: one
// huge line holding the artwork, and many small track-change lines.
#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/json_reader.h"
#include "base/json_writer.h"

namespace {

constexpr std::size_t artworkBase64Length = 11 * 1024 * 1024;
constexpr std::size_t bigLineLength = 16 * 1024 * 1024;
constexpr std::size_t smallLineCount = 100'000;

// A fixed-seed generator so every run reads the same text.
class Random {
 public:
  std::uint32_t next() {
    state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<std::uint32_t>(state_ >> 33);
  }
  std::uint32_t below(std::uint32_t bound) { return next() % bound; }

 private:
  std::uint64_t state_ = 0x5EEDULL;
};

std::string base64Text(std::size_t length, Random& random) {
  static constexpr char alphabet[] =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text(length, '=');
  for (std::size_t i = 0; i + 2 < length; ++i) text[i] = alphabet[random.below(64)];
  return text;
}

// Song lyrics as the adapter would send them: lines of words with escaped line breaks, now and
// then an accented word or a quotation.
std::string lyricsText(std::size_t length, Random& random) {
  static const char* const words[] = {"night", "river", "light", "home",  "again", "hold",
                                      "on",    "we",    "were",  "young", "under", "the",
                                      "stars", "and",   "you",   "said",  "never", "go"};
  std::string text;
  text.reserve(length + 64);
  while (text.size() < length) {
    for (std::uint32_t word = 0, count = 5 + random.below(5); word < count; ++word) {
      text += words[random.below(18)];
      text += ' ';
    }
    if (random.below(15) == 0) text += "caf\\u00e9 Montr\\u00e9al ";
    if (random.below(15) == 0) text += "caf\xC3\xA9 ";
    if (random.below(20) == 0) text += "\\\"echo\\\" ";
    text.back() = '\\';
    text += 'n';
  }
  return text;
}

std::string bigLine() {
  Random random;
  std::string line =
      R"({"type":"data","diff":false,"payload":{"bundleIdentifier":"com.apple.Music",)"
      R"("title":"Caf\u00e9 del Mar","artist":"Ludovico Einaudi","album":"Elements",)"
      R"("duration":421.826,"elapsedTime":12.5,"playbackRate":1,"playing":true,)"
      R"("timestamp":1700000000.123456,"trackNumber":3,"artworkMimeType":"image/jpeg",)"
      R"("artworkData":")";
  line += base64Text(artworkBase64Length, random);
  line += R"(","lyrics":")";
  line += lyricsText(bigLineLength - line.size() - 4, random);
  line += "\"}}";
  return line;
}

std::string smallLine(Random& random) {
  static const char* const artists[] = {"Ludovico Einaudi", "Daft Punk", "Bj\\u00f6rk",
                                        "Sigur R\xC3\xB3s", "The Beatles"};
  char line[512];
  const int length = std::snprintf(
      line, sizeof line,
      R"({"type":"data","diff":false,"payload":{"bundleIdentifier":"com.spotify.client",)"
      R"("title":"Track number %u of the evening","artist":"%s","album":"Album %u",)"
      R"("duration":%u.%03u,"elapsedTime":%u.%u,"playbackRate":%u,"playing":%s,)"
      R"("timestamp":17000%05u.%06u,"trackNumber":%u,"artworkMimeType":null,"shuffle":false}})",
      random.below(100000), artists[random.below(5)], random.below(1000), 60 + random.below(600),
      random.below(1000), random.below(300), random.below(10), random.below(2),
      random.below(2) ? "true" : "false", random.below(100000), random.below(1000000),
      1 + random.below(20));
  return std::string(line, static_cast<std::size_t>(length));
}

// All small lines in one buffer, newline-separated and padded, so simdjson can read each in place.
struct SmallLines {
  simdjson::padded_string buffer;
  std::vector<std::string_view> lines;
};

// `ordered`: the same lines as our own writer puts them, members in name order, which the reader
// takes at the cheapest.
SmallLines makeSmallLines(bool ordered) {
  Random random;
  std::string text;
  std::vector<std::size_t> lengths;
  for (std::size_t i = 0; i < smallLineCount; ++i) {
    std::string line = smallLine(random);
    if (ordered) line = tindra::JSONWriter::write(tindra::JSONReader::parse(line).value());
    lengths.push_back(line.size());
    text += line;
    text += '\n';
  }
  SmallLines result{simdjson::padded_string(text), {}};
  const char* start = result.buffer.data();
  for (std::size_t length : lengths) {
    result.lines.emplace_back(start, length);
    start += length + 1;
  }
  return result;
}

const SmallLines& smallLines(bool ordered) {
  static const SmallLines arrival = makeSmallLines(false);
  static const SmallLines nameOrder = makeSmallLines(true);
  return ordered ? nameOrder : arrival;
}

const simdjson::padded_string& bigLineText() {
  static const simdjson::padded_string text(bigLine());
  return text;
}

std::size_t totalBytes(const SmallLines& lines) {
  std::size_t bytes = 0;
  for (std::string_view line : lines.lines) bytes += line.size();
  return bytes;
}

void requireParsed(bool parsed, const char* what) {
  if (parsed) return;
  std::fprintf(stderr, "%s failed to read the benchmark text\n", what);
  std::abort();
}

void BM_BigLine_Tindra(benchmark::State& state) {
  const std::string_view text(bigLineText().data(), bigLineText().size());
  for (auto _ : state) {
    auto value = tindra::JSONReader::parse(text);
    requireParsed(value.has_value(), "JSONReader");
    benchmark::DoNotOptimize(value);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void BM_BigLine_Simdjson(benchmark::State& state) {
  const simdjson::padded_string& text = bigLineText();
  simdjson::dom::parser parser;
  for (auto _ : state) {
    auto document = parser.parse(text);
    requireParsed(document.error() == simdjson::SUCCESS, "simdjson");
    benchmark::DoNotOptimize(document);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void BM_SmallLines_Tindra(benchmark::State& state, bool ordered) {
  const SmallLines& lines = smallLines(ordered);
  for (auto _ : state) {
    for (std::string_view line : lines.lines) {
      auto value = tindra::JSONReader::parse(line);
      requireParsed(value.has_value(), "JSONReader");
      benchmark::DoNotOptimize(value);
    }
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * lines.lines.size()));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * totalBytes(lines)));
}

void BM_SmallLines_Simdjson(benchmark::State& state, bool ordered) {
  const SmallLines& lines = smallLines(ordered);
  simdjson::dom::parser parser;
  for (auto _ : state) {
    for (std::string_view line : lines.lines) {
      // The bytes after each line (the rest of the padded buffer) are readable, so no copy.
      auto document = parser.parse(line.data(), line.size(), false);
      requireParsed(document.error() == simdjson::SUCCESS, "simdjson");
      benchmark::DoNotOptimize(document);
    }
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * lines.lines.size()));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * totalBytes(lines)));
}

BENCHMARK(BM_BigLine_Tindra)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BigLine_Simdjson)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_SmallLines_Tindra, arrivalOrder, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_SmallLines_Simdjson, arrivalOrder, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_SmallLines_Tindra, nameOrder, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_SmallLines_Simdjson, nameOrder, true)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
