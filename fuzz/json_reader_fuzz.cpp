// Reads arbitrary bytes as JSON; whatever reads must survive writing and reading again unchanged,
// and a lone number must read as the double from_chars finds.
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "base/json_reader.h"
#include "base/json_writer.h"

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

// A number read on its own must be the double from_chars gives for the same digits.
void checkNumber(const tindra::JSONValue& value, std::string_view text) {
  const double* number = value.asNumber();
  if (number == nullptr) return;
  const auto first = text.find_first_not_of(" \t\r\n");
  const auto last = text.find_last_not_of(" \t\r\n");
  double expected = 0;
  const auto result = std::from_chars(text.data() + first, text.data() + last + 1, expected);
  if (result.ec == std::errc() && *number != expected) {
    std::fprintf(stderr, "number reads as %.17g, from_chars gives %.17g\n", *number, expected);
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
  checkNumber(*value, text);
  checkRoundTrip(*value, tindra::JSONWriter::write(*value));
  checkRoundTrip(*value, tindra::JSONWriter::writePretty(*value));
  return 0;
}
