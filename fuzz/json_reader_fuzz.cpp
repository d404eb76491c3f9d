// Reads arbitrary bytes as JSON; whatever reads must survive writing and reading again unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "settings/json_reader.h"
#include "settings/json_writer.h"

namespace {

void checkRoundTrip(const tindra::JSONValue& value, const std::string& text) {
  auto again = tindra::JSONReader::parse(text);
  if (!again.has_value()) {
    std::fprintf(stderr, "written text does not read: %s\n", again.error().message().c_str());
    std::abort();
  }
  if (!(*again == value)) {
    std::fprintf(stderr, "written text reads as a different value\n");
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  auto value = tindra::JSONReader::parse(text);
  if (!value.has_value()) {
    if (value.error().offset > size) std::abort();
    return 0;
  }
  checkRoundTrip(*value, tindra::JSONWriter::write(*value));
  checkRoundTrip(*value, tindra::JSONWriter::writePretty(*value));
  return 0;
}
