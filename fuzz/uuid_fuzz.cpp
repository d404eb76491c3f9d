// UUID::fromText on arbitrary bytes: accepted text must read back to the same UUID and print as
// the input in upper case; any 16 bytes must survive text() and fromText().
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "base/uuid.h"

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

std::string upperCased(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return upper;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (const auto uuid = tindra::UUID::fromText(text)) {
    check(uuid->text() == upperCased(text));
    check(tindra::UUID::fromText(uuid->text()) == uuid);
  }
  if (size >= 16) {
    tindra::UUID::Bytes bytes{};
    std::memcpy(bytes.data(), data, bytes.size());
    const tindra::UUID uuid(bytes);
    check(tindra::UUID::fromText(uuid.text()) == uuid);
  }
  return 0;
}
