// Feeds arbitrary bytes to the adapter stream parser three ways: whole, in chunks whose sizes
// come from the input's first bytes, and whole with every cover decoded straight from the line.
// Chunking and the direct cover path must never change a result or the parser's state.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "nowplaying/adapter_message_parser.h"

using tindra::AdapterMessageParser;

namespace {

bool sameState(const AdapterMessageParser& a, const AdapterMessageParser& b) {
  return a.state() == b.state() && a.messageCount() == b.messageCount() &&
         a.artwork() == b.artwork() && a.buffer() == b.buffer() &&
         a.discardingOversizedLine() == b.discardingOversizedLine();
}

std::vector<AdapterMessageParser::Result> feedInChunks(AdapterMessageParser& parser,
                                                       std::string_view bytes,
                                                       std::string_view sizes) {
  std::vector<AdapterMessageParser::Result> results;
  std::size_t next = 0;
  while (!bytes.empty()) {
    const std::size_t size =
        sizes.empty() ? 1 : 1 + static_cast<unsigned char>(sizes[next++ % sizes.size()]) % 97;
    auto part = parser.feed(bytes.substr(0, size));
    bytes.remove_prefix(std::min(size, bytes.size()));
    for (auto& result : part) results.push_back(std::move(result));
  }
  return results;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t sizeCount = std::min<std::size_t>(data[0] % 16, size - 1);
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const std::string_view sizes = all.substr(1, sizeCount);
  const std::string_view stream = all.substr(1 + sizeCount);

  AdapterMessageParser whole;
  const auto expected = whole.feed(stream);

  AdapterMessageParser chunked;
  if (feedInChunks(chunked, stream, sizes) != expected || !sameState(whole, chunked)) std::abort();

  AdapterMessageParser direct({.directArtworkThreshold = 0});
  if (direct.feed(stream) != expected || !sameState(whole, direct)) std::abort();
  return 0;
}
