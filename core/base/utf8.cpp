#include "base/utf8.h"

namespace tindra {

namespace {

bool inRange(const char* p, unsigned char low, unsigned char high) {
  auto byte = static_cast<unsigned char>(*p);
  return byte >= low && byte <= high;
}

}  // namespace

std::size_t utf8SequenceLength(const char* p, const char* end) {
  const auto lead = static_cast<unsigned char>(*p);
  const std::ptrdiff_t available = end - p;
  // The second byte's range depends on the lead: it is what excludes overlongs (E0, F0),
  // encoded surrogates (ED) and values past U+10FFFF (F4).
  unsigned char secondLow = 0x80;
  unsigned char secondHigh = 0xBF;
  std::size_t length = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) secondLow = 0xA0;
    if (lead == 0xED) secondHigh = 0x9F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) secondLow = 0x90;
    if (lead == 0xF4) secondHigh = 0x8F;
  } else {
    return 0;
  }
  if (available < static_cast<std::ptrdiff_t>(length)) return 0;
  if (!inRange(p + 1, secondLow, secondHigh)) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if (!inRange(p + i, 0x80, 0xBF)) return 0;
  }
  return length;
}

void appendUTF8(std::string& out, std::uint32_t codePoint) {
  auto append = [&out](std::uint32_t byte) { out.push_back(static_cast<char>(byte)); };
  auto continuation = [](std::uint32_t bits) { return 0x80 | (bits & 0x3F); };
  if (codePoint < 0x80) {
    append(codePoint);
  } else if (codePoint < 0x800) {
    append(0xC0 | (codePoint >> 6));
    append(continuation(codePoint));
  } else if (codePoint < 0x10000) {
    append(0xE0 | (codePoint >> 12));
    append(continuation(codePoint >> 6));
    append(continuation(codePoint));
  } else {
    append(0xF0 | (codePoint >> 18));
    append(continuation(codePoint >> 12));
    append(continuation(codePoint >> 6));
    append(continuation(codePoint));
  }
}

}  // namespace tindra
