#include "icalendar/icalendar_text.h"

#include <unicode/unistr.h>

#include "base/utf8.h"

namespace tindra {

namespace {

bool isWellFormedUTF8(std::string_view text) {
  const char* p = text.data();
  const char* end = p + text.size();
  while (p < end) {
    if (static_cast<unsigned char>(*p) < 0x80) {
      ++p;
      continue;
    }
    const std::size_t length = utf8SequenceLength(p, end);
    if (length == 0) return false;
    p += length;
  }
  return true;
}

std::string converted(std::string_view bytes, const char* codepage) {
  const icu::UnicodeString text(bytes.data(), static_cast<int32_t>(bytes.size()), codepage);
  std::string utf8;
  text.toUTF8String(utf8);
  return utf8;
}

}  // namespace

std::string iCalendarUTF8(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
    std::string text = converted(bytes, "UTF-16");
    if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
    return text;
  }
  if (isWellFormedUTF8(bytes)) return std::string(bytes);
  return converted(bytes, "windows-1252");
}

}  // namespace tindra
