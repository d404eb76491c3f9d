// Strict Base64 decoding: the standard alphabet, "=" padding required, a length that is a
// multiple of 4 and no character ignored (no white space, no URL-safe letters). Built for covers
// of several megabytes: table lookups with no branch per byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/enum_table.h"

namespace tindra {

enum class Base64Error {
  badLength,     // not a multiple of 4
  badCharacter,  // outside the alphabet, or "=" anywhere but the last one or two places
};

template <>
struct EnumTable<Base64Error> {
  static constexpr std::array cases{EnumCase{Base64Error::badLength, "badLength"},
                                    EnumCase{Base64Error::badCharacter, "badCharacter"}};
};

// Bytes that `text` decodes to when it is well formed (its length less the padding, times 3/4).
std::size_t base64DecodedSize(std::string_view text);

// Decodes into `out`, which must hold base64DecodedSize(text) bytes; returns that count.
std::expected<std::size_t, Base64Error> decodeBase64(std::string_view text,
                                                     std::span<std::uint8_t> out);

std::expected<std::vector<std::uint8_t>, Base64Error> decodeBase64(std::string_view text);

// The padded standard form of `bytes`, which decodeBase64 reads back.
std::string encodeBase64(std::span<const std::uint8_t> bytes);

}  // namespace tindra
