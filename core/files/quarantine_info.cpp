#include "files/quarantine_info.h"

#include <cstdint>
#include <limits>
#include <vector>

#include "base/hex_digit.h"

namespace tindra {

namespace {

// The first three ";"-separated pieces, empty ones kept; fewer when the value has fewer.
std::vector<std::string_view> leadingPieces(std::string_view value) {
  std::vector<std::string_view> pieces;
  while (pieces.size() < 3) {
    const std::size_t end = value.find(';');
    pieces.push_back(value.substr(0, end));
    if (end == std::string_view::npos) break;
    value.remove_prefix(end + 1);
  }
  return pieces;
}

// A signed hexadecimal integer that fits 64 bits ("-8000000000000000" just does).
std::optional<std::int64_t> signedHex(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  const std::uint64_t limit =
      static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (negative ? 1 : 0);
  std::uint64_t magnitude = 0;
  for (char c : text) {
    const int digit = hexDigitValue(c);
    if (digit < 0 || magnitude > (limit - static_cast<std::uint64_t>(digit)) / 16) {
      return std::nullopt;
    }
    magnitude = magnitude * 16 + static_cast<std::uint64_t>(digit);
  }
  if (!negative) return static_cast<std::int64_t>(magnitude);
  // Negating in unsigned arithmetic keeps INT64_MIN representable.
  return static_cast<std::int64_t>(~magnitude + 1);
}

}  // namespace

std::optional<QuarantineInfo> QuarantineInfo::parse(std::string_view value) {
  const std::vector<std::string_view> pieces = leadingPieces(value);
  if (pieces.size() < 3) return std::nullopt;
  QuarantineInfo info{std::string(pieces[2]), std::nullopt};
  if (const std::optional<std::int64_t> seconds = signedHex(pieces[1])) {
    info.date = static_cast<double>(*seconds);
  }
  return info;
}

}  // namespace tindra
