// UUID: a 128-bit identifier held as 16 bytes. Random ones are version 4 from the system's entropy
// source. The text form is the canonical 8-4-4-4-12 hex with upper-case digits, and reading
// accepts either case but nothing else (no braces, no spaces, no missing dashes).
#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tindra {

class UUID {
 public:
  using Bytes = std::array<std::uint8_t, 16>;
  static constexpr std::size_t textLength = 36;

  constexpr UUID() = default;  // all zero bits
  explicit constexpr UUID(const Bytes& bytes) : bytes_(bytes) {}

  // A new version 4 (random) UUID.
  static UUID random();
  // The UUID spelled by `text` in the 8-4-4-4-12 form, hex digits of either case.
  static std::optional<UUID> fromText(std::string_view text);

  const Bytes& bytes() const { return bytes_; }
  // "E621E1F8-C36C-495A-93FC-0C247A3E6E5F".
  std::string text() const;

  friend constexpr auto operator<=>(const UUID&, const UUID&) = default;

 private:
  Bytes bytes_{};
};

}  // namespace tindra

template <>
struct std::hash<tindra::UUID> {
  std::size_t operator()(const tindra::UUID& uuid) const noexcept;
};
