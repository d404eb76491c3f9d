// Strict Base64 on arbitrary text: decoding never reads or writes out of bounds, a success has
// exactly the announced size, and any bytes survive encoding and decoding unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "base/base64.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (auto decoded = tindra::decodeBase64(text)) {
    if (decoded->size() != tindra::base64DecodedSize(text)) std::abort();
  }
  const std::vector<std::uint8_t> bytes(data, data + size);
  auto roundTrip = tindra::decodeBase64(tindra::encodeBase64(bytes));
  if (!roundTrip || *roundTrip != bytes) std::abort();
  return 0;
}
