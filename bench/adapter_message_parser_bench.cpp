// Adapter stream parsing against the best readers available: simdjson's DOM parser for the
// JSON and modp_b64 for the cover, measured in the same run so ratios survive a busy machine.
#include <benchmark/benchmark.h>
#include <modp_b64.h>
#include <simdjson.h>

#include <string>
#include <vector>

#include "base/base64.h"
#include "nowplaying/adapter_message_parser.h"

namespace {

using tindra::AdapterMessageParser;

// A track change followed by the diffs a playing track sends: position samples, pauses and
// occasional metadata changes, each line ending in a newline.
std::vector<std::string> smallLines() {
  std::vector<std::string> lines;
  lines.push_back(R"({"type":"data","diff":false,"payload":{"bundleIdentifier":"com.apple.Music",)"
                  R"("title":"Comfortably Numb","artist":"Pink Floyd","album":"The Wall",)"
                  R"("playing":true,"durationMicros":382296000,"elapsedTimeMicros":1000000,)"
                  R"("timestampEpochMicros":1714566605000000,"playbackRate":1,"shuffleMode":1,)"
                  R"("repeatMode":1}})"
                  "\n");
  for (int i = 0; i < 255; ++i) {
    const std::string micros = std::to_string(1'000'000 + i * 250'000);
    const std::string stamp = std::to_string(1714566605000000LL + i * 250'000LL);
    if (i % 16 == 15) {
      lines.push_back(R"({"type":"data","diff":true,"payload":{"playing":)" +
                      std::string(i % 32 == 15 ? "false" : "true") + R"(,"elapsedTimeMicros":)" +
                      micros + R"(,"timestampEpochMicros":)" + stamp + "}}\n");
    } else if (i % 64 == 63) {
      lines.push_back(R"({"type":"data","diff":true,"payload":{"title":"Hey You","album":null}})"
                      "\n");
    } else {
      lines.push_back(R"({"type":"data","diff":true,"payload":{"elapsedTimeMicros":)" + micros +
                      R"(,"timestampEpochMicros":)" + stamp + "}}\n");
    }
  }
  return lines;
}

std::string coverText() {
  std::vector<std::uint8_t> image(6 * 1024 * 1024 + 17);
  std::uint32_t x = 2463534242u;
  for (auto& byte : image) {
    x ^= x << 13;
    x ^= x >> 17;
    x ^= x << 5;
    byte = static_cast<std::uint8_t>(x);
  }
  return tindra::encodeBase64(image);  // about 8 MiB
}

std::string coverLine(const std::string& cover) {
  return R"({"type":"data","diff":false,"payload":{"bundleIdentifier":"com.apple.Music",)"
         R"("title":"Comfortably Numb","artist":"Pink Floyd","album":"The Wall","playing":true,)"
         R"("durationMicros":382296000,"elapsedTimeMicros":0,"artworkData":")" +
         cover + R"(","artworkMimeType":"image/jpeg"}})" + "\n";
}

void BM_SmallLines_Feed(benchmark::State& state) {
  const auto lines = smallLines();
  std::size_t bytes = 0;
  for (const auto& line : lines) bytes += line.size();
  for (auto _ : state) {
    AdapterMessageParser parser;
    for (const auto& line : lines) benchmark::DoNotOptimize(parser.feed(line));
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * lines.size()));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}
BENCHMARK(BM_SmallLines_Feed);

void BM_SmallLines_SimdjsonDOM(benchmark::State& state) {
  const auto lines = smallLines();
  std::vector<simdjson::padded_string> padded;
  std::size_t bytes = 0;
  for (const auto& line : lines) {
    padded.emplace_back(line);
    bytes += line.size();
  }
  simdjson::dom::parser parser;
  for (auto _ : state) {
    for (const auto& line : padded) {
      simdjson::dom::element doc;
      if (parser.parse(line).get(doc)) state.SkipWithError("simdjson refused a line");
      benchmark::DoNotOptimize(doc);
    }
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * lines.size()));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}
BENCHMARK(BM_SmallLines_SimdjsonDOM);

void BM_CoverLine_Feed(benchmark::State& state) {
  const std::string line = coverLine(coverText());
  for (auto _ : state) {
    AdapterMessageParser parser;
    auto results = parser.feed(line);
    if (results.size() != 1 || !results[0] || !*results[0] || !(*results[0])->artwork) {
      state.SkipWithError("the cover was not decoded");
    }
    benchmark::DoNotOptimize(results);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * line.size()));
}
BENCHMARK(BM_CoverLine_Feed)->Unit(benchmark::kMillisecond);

// The same line arriving as 64 KiB pipe reads, so it is gathered in the parser's buffer first.
void BM_CoverLine_FeedInPipeReads(benchmark::State& state) {
  const std::string line = coverLine(coverText());
  constexpr std::size_t readSize = 65536;
  for (auto _ : state) {
    AdapterMessageParser parser;
    std::size_t results = 0;
    for (std::size_t at = 0; at < line.size(); at += readSize) {
      results += parser.feed(std::string_view(line).substr(at, readSize)).size();
    }
    if (results != 1 || !parser.artwork()) state.SkipWithError("the cover was not decoded");
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * line.size()));
}
BENCHMARK(BM_CoverLine_FeedInPipeReads)->Unit(benchmark::kMillisecond);

void BM_CoverLine_SimdjsonDOMPlusModpB64(benchmark::State& state) {
  const std::string line = coverLine(coverText());
  const simdjson::padded_string padded(line);
  simdjson::dom::parser parser;
  std::string image(modp_b64_decode_len(line.size()), '\0');
  for (auto _ : state) {
    std::string_view text;
    if (parser.parse(padded)["payload"]["artworkData"].get_string().get(text)) {
      state.SkipWithError("simdjson refused the line");
    }
    const std::size_t size = modp_b64_decode(image.data(), text.data(), text.size());
    if (size == static_cast<std::size_t>(-1)) state.SkipWithError("modp_b64 refused the cover");
    benchmark::DoNotOptimize(image.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * line.size()));
}
BENCHMARK(BM_CoverLine_SimdjsonDOMPlusModpB64)->Unit(benchmark::kMillisecond);

void BM_Base64_Decode(benchmark::State& state) {
  const std::string cover = coverText();
  std::vector<std::uint8_t> image(tindra::base64DecodedSize(cover));
  for (auto _ : state) {
    if (!tindra::decodeBase64(cover, image)) state.SkipWithError("refused");
    benchmark::DoNotOptimize(image.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * cover.size()));
}
BENCHMARK(BM_Base64_Decode)->Unit(benchmark::kMillisecond);

void BM_Base64_ModpB64(benchmark::State& state) {
  const std::string cover = coverText();
  std::string image(modp_b64_decode_len(cover.size()), '\0');
  for (auto _ : state) {
    const std::size_t size = modp_b64_decode(image.data(), cover.data(), cover.size());
    if (size == static_cast<std::size_t>(-1)) state.SkipWithError("refused");
    benchmark::DoNotOptimize(image.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * cover.size()));
}
BENCHMARK(BM_Base64_ModpB64)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
