#include "base/uuid.h"

#include <sys/random.h>

#include <algorithm>
#include <random>

namespace tindra {
namespace {

constexpr std::array<std::size_t, 4> dashPositions{8, 13, 18, 23};
constexpr std::string_view upperHexDigits = "0123456789ABCDEF";

bool isDashPosition(std::size_t position) {
  return std::find(dashPositions.begin(), dashPositions.end(), position) != dashPositions.end();
}

std::optional<std::uint8_t> hexValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return std::nullopt;
}

void fillRandom(UUID::Bytes& bytes) {
  // getentropy never returns fewer bytes than asked for up to 256; std::random_device is the
  // fallback for a kernel without getrandom.
  if (getentropy(bytes.data(), bytes.size()) == 0) return;
  std::random_device device;
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(device());
}

}  // namespace

UUID UUID::random() {
  Bytes bytes;
  fillRandom(bytes);
  bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);  // version 4
  bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);  // RFC 4122 variant
  return UUID(bytes);
}

std::optional<UUID> UUID::fromText(std::string_view text) {
  if (text.size() != textLength) return std::nullopt;
  Bytes bytes{};
  std::size_t digitCount = 0;
  for (std::size_t position = 0; position < text.size(); ++position) {
    if (isDashPosition(position)) {
      if (text[position] != '-') return std::nullopt;
      continue;
    }
    const auto value = hexValue(text[position]);
    if (!value) return std::nullopt;
    auto& byte = bytes[digitCount / 2];
    byte = static_cast<std::uint8_t>(digitCount % 2 == 0 ? *value << 4 : byte | *value);
    ++digitCount;
  }
  return UUID(bytes);
}

std::string UUID::text() const {
  std::string text;
  text.reserve(textLength);
  for (std::size_t index = 0; index < bytes_.size(); ++index) {
    if (isDashPosition(text.size())) text.push_back('-');
    text.push_back(upperHexDigits[bytes_[index] >> 4]);
    text.push_back(upperHexDigits[bytes_[index] & 0x0F]);
  }
  return text;
}

}  // namespace tindra

std::size_t std::hash<tindra::UUID>::operator()(const tindra::UUID& uuid) const noexcept {
  std::uint64_t high = 0;
  std::uint64_t low = 0;
  for (std::size_t index = 0; index < 8; ++index) {
    high = (high << 8) | uuid.bytes()[index];
    low = (low << 8) | uuid.bytes()[index + 8];
  }
  // Mixes both halves so that UUIDs which differ only in one half (sequential or hand-made ones)
  // still spread.
  return static_cast<std::size_t>(high * 0x9E3779B97F4A7C15ULL ^ low);
}
