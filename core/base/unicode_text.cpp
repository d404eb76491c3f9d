#include "base/unicode_text.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace tindra {
namespace {

bool isWhitespace(UChar32 c) {
  return c >= 0 && u_isUWhiteSpace(c);
}

}  // namespace

std::string_view trimmedUnicodeWhitespace(std::string_view text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const auto length = static_cast<std::int32_t>(text.size());
  std::int32_t start = 0;
  while (start < length) {
    std::int32_t next = start;
    UChar32 c;
    U8_NEXT(bytes, next, length, c);
    if (!isWhitespace(c)) break;
    start = next;
  }
  std::int32_t end = length;
  while (end > start) {
    std::int32_t previous = end;
    UChar32 c;
    U8_PREV(bytes, start, previous, c);
    if (!isWhitespace(c)) break;
    end = previous;
  }
  return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
}

std::string foldedCaseAndDiacritics(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
  const icu::Normalizer2* nfc = icu::Normalizer2::getNFCInstance(status);
  if (U_FAILURE(status)) return std::string(text);

  icu::UnicodeString folded = icu::UnicodeString::fromUTF8(
      icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
  folded.foldCase();
  const icu::UnicodeString decomposed = nfd->normalize(folded, status);
  icu::UnicodeString bare;
  for (std::int32_t i = 0; i < decomposed.length();) {
    const UChar32 c = decomposed.char32At(i);
    if (u_charType(c) != U_NON_SPACING_MARK) bare.append(c);
    i += U16_LENGTH(c);
  }
  const icu::UnicodeString composed = nfc->normalize(bare, status);
  if (U_FAILURE(status)) return std::string(text);
  std::string out;
  composed.toUTF8String(out);
  return out;
}

}  // namespace tindra
