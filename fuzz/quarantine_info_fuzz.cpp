// Quarantine attributes are written by whatever program downloaded the file. Checks the parser
// against an independent reading of the pieces and runs the arrival rules over the same value.
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "files/air_drop_arrivals.h"
#include "files/quarantine_info.h"

namespace {

void check(bool condition) {
  if (!condition) std::abort();
}

std::vector<std::string_view> split(std::string_view value) {
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  for (std::size_t at = value.find(';'); at != std::string_view::npos;
       start = at + 1, at = value.find(';', start)) {
    pieces.push_back(value.substr(start, at - start));
  }
  pieces.push_back(value.substr(start));
  return pieces;
}

// std::from_chars reads a leading "-" but not "+", and nothing else: a fine second opinion.
std::optional<std::int64_t> referenceHex(std::string_view piece) {
  if (piece.starts_with('+')) {
    piece.remove_prefix(1);
    if (piece.starts_with('-')) return std::nullopt;
  }
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(piece.data(), piece.data() + piece.size(), value, 16);
  if (error != std::errc() || end != piece.data() + piece.size() || piece.empty()) {
    return std::nullopt;
  }
  return value;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string value(reinterpret_cast<const char*>(data), size);
  const std::optional<tindra::QuarantineInfo> info = tindra::QuarantineInfo::parse(value);
  const std::vector<std::string_view> pieces = split(value);
  check(info.has_value() == (pieces.size() >= 3));
  if (info) {
    check(info->agent == pieces[2]);
    const std::optional<std::int64_t> expected = referenceHex(pieces[1]);
    check(info->date.has_value() == expected.has_value());
    if (expected) check(*info->date == static_cast<double>(*expected));
  }

  const std::vector<tindra::AirDropArrivals::Entry> entries{{value, value}, {"f", value}};
  const std::set<std::string, std::less<>> known;
  const auto names =
      tindra::AirDropArrivals::arrivals(entries, known, info && info->date ? *info->date : 0);
  check(names.size() <= entries.size());
  return 0;
}
