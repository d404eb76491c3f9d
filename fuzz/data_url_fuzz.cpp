// Arbitrary text as a data: address: decoding never reads or writes out of bounds, never returns
// more than the limit, and what it returns comes back from the Base64 form of itself.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/base64.h"
#include "base/data_url.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  constexpr std::size_t limit = 4096;
  const auto bytes = tindra::decodeDataURL(text, limit);
  if (!bytes) return 0;
  if (bytes->size() > limit) std::abort();
  const std::vector<std::uint8_t> raw(bytes->begin(), bytes->end());
  const auto again = tindra::decodeDataURL("data:;base64," + tindra::encodeBase64(raw), limit);
  if (again != bytes) std::abort();
  return 0;
}
