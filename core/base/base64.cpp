#include "base/base64.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace tindra {
namespace {

static_assert(std::endian::native == std::endian::little,
              "the decode tables place bytes for a little-endian store");

// Any table entry with bit 24 set marks a character outside the alphabet. OR-ing the entries of
// a whole text and testing that bit once replaces a branch per character.
constexpr std::uint32_t invalid = 0x01FFFFFF;

constexpr int sextet(unsigned char c) {
  if (c >= 'A' && c <= 'Z') return c - 'A';
  if (c >= 'a' && c <= 'z') return c - 'a' + 26;
  if (c >= '0' && c <= '9') return c - '0' + 52;
  if (c == '+') return 62;
  if (c == '/') return 63;
  return -1;
}

// Table k holds each character's six bits already shifted to where they land in the three
// output bytes when the character sits at place k of its group of four; byte 0 of the word is
// the first output byte.
template <int place>
constexpr std::array<std::uint32_t, 256> makeTable() {
  std::array<std::uint32_t, 256> table{};
  for (int c = 0; c < 256; ++c) {
    const int s = sextet(static_cast<unsigned char>(c));
    if (s < 0) {
      table[c] = invalid;
      continue;
    }
    const auto v = static_cast<std::uint32_t>(s);
    if constexpr (place == 0) table[c] = v << 2;
    if constexpr (place == 1) table[c] = (v >> 4) | ((v & 0x0F) << 12);
    if constexpr (place == 2) table[c] = ((v >> 2) << 8) | ((v & 0x03) << 22);
    if constexpr (place == 3) table[c] = v << 16;
  }
  return table;
}

constexpr auto table0 = makeTable<0>();
constexpr auto table1 = makeTable<1>();
constexpr auto table2 = makeTable<2>();
constexpr auto table3 = makeTable<3>();

std::uint32_t decodeGroup(const unsigned char* in) {
  return table0[in[0]] | table1[in[1]] | table2[in[2]] | table3[in[3]];
}

std::size_t paddingOf(std::string_view text) {
  if (text.size() < 4 || text.size() % 4 != 0) return 0;
  if (text[text.size() - 1] != '=') return 0;
  return text[text.size() - 2] == '=' ? 2 : 1;
}

}  // namespace

std::size_t base64DecodedSize(std::string_view text) {
  return text.size() / 4 * 3 - paddingOf(text);
}

std::expected<std::size_t, Base64Error> decodeBase64(std::string_view text,
                                                     std::span<std::uint8_t> out) {
  if (text.size() % 4 != 0) return std::unexpected(Base64Error::badLength);
  if (text.empty()) return 0;
  const auto* in = reinterpret_cast<const unsigned char*>(text.data());
  const std::size_t groups = text.size() / 4;
  std::uint8_t* dst = out.data();
  std::uint32_t seen = 0;

  // Every group but the last writes a four-byte word and advances by three; the spare byte is
  // overwritten by the next group, so the output needs no slack.
  std::size_t g = 0;
  for (; g + 4 < groups; g += 4) {
    const std::uint32_t a = decodeGroup(in);
    const std::uint32_t b = decodeGroup(in + 4);
    const std::uint32_t c = decodeGroup(in + 8);
    const std::uint32_t d = decodeGroup(in + 12);
    seen |= a | b | c | d;
    std::memcpy(dst, &a, 4);
    std::memcpy(dst + 3, &b, 4);
    std::memcpy(dst + 6, &c, 4);
    std::memcpy(dst + 9, &d, 4);
    in += 16;
    dst += 12;
  }
  for (; g + 1 < groups; ++g) {
    const std::uint32_t a = decodeGroup(in);
    seen |= a;
    std::memcpy(dst, &a, 4);
    in += 4;
    dst += 3;
  }

  // The last group may end in "=" or "==": decode it with "A" (zero bits) in their place.
  const std::size_t padding = paddingOf(text);
  unsigned char last[4] = {in[0], in[1], in[2], in[3]};
  if (padding >= 1) last[3] = 'A';
  if (padding == 2) last[2] = 'A';
  const std::uint32_t tail = decodeGroup(last);
  seen |= tail;
  if (seen & 0xFF000000u) return std::unexpected(Base64Error::badCharacter);
  const std::size_t tailBytes = 3 - padding;
  for (std::size_t i = 0; i < tailBytes; ++i) dst[i] = static_cast<std::uint8_t>(tail >> (8 * i));
  return static_cast<std::size_t>(dst + tailBytes - out.data());
}

std::expected<std::vector<std::uint8_t>, Base64Error> decodeBase64(std::string_view text) {
  std::vector<std::uint8_t> bytes(base64DecodedSize(text));
  auto decoded = decodeBase64(text, bytes);
  if (!decoded) return std::unexpected(decoded.error());
  return bytes;
}

std::string encodeBase64(std::span<const std::uint8_t> bytes) {
  static constexpr char alphabet[] =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string out;
  out.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t group = static_cast<std::uint32_t>(bytes[i]) << 16;
    if (count > 1) group |= static_cast<std::uint32_t>(bytes[i + 1]) << 8;
    if (count > 2) group |= bytes[i + 2];
    for (std::size_t k = 0; k < 4; ++k) {
      out.push_back(k <= count ? alphabet[(group >> (18 - 6 * k)) & 63] : '=');
    }
  }
  return out;
}

}  // namespace tindra
