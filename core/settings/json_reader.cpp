#include "settings/json_reader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "settings/utf8.h"

namespace tindra {

std::string JSONParseError::message() const {
  const char* reason = "";
  switch (code) {
    case Code::unexpectedEnd:
      reason = "the text ends inside a value";
      break;
    case Code::unexpectedCharacter:
      reason = "unexpected character";
      break;
    case Code::invalidNumber:
      reason = "malformed number";
      break;
    case Code::numberOutOfRange:
      reason = "number too large";
      break;
    case Code::invalidEscape:
      reason = "invalid escape sequence";
      break;
    case Code::invalidUTF8:
      reason = "invalid UTF-8";
      break;
    case Code::controlCharacter:
      reason = "unescaped control character in a string";
      break;
    case Code::tooDeep:
      reason = "arrays and objects nested too deeply";
      break;
    case Code::trailingContent:
      reason = "unexpected text after the value";
      break;
  }
  return "invalid JSON at byte " + std::to_string(offset) + ": " + reason;
}

namespace {

using Code = JSONParseError::Code;

constexpr std::uint64_t repeatByte(unsigned char byte) {
  return 0x0101010101010101ULL * byte;
}

// Nonzero when some byte of `word` is zero; the lowest flagged byte is always a real one.
constexpr std::uint64_t zeroByteFlags(std::uint64_t word) {
  return (word - repeatByte(0x01)) & ~word & repeatByte(0x80);
}

// Nonzero when some byte of `word` is a quote, a backslash, below 0x20 or above 0x7F: a byte that
// ends the plain run of a string.
constexpr std::uint64_t specialByteFlags(std::uint64_t word) {
  return zeroByteFlags(word ^ repeatByte('"')) | zeroByteFlags(word ^ repeatByte('\\')) |
         (((word - repeatByte(0x20)) | word) & repeatByte(0x80));
}

bool isSpecialByte(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte == '"' || byte == '\\' || byte < 0x20 || byte >= 0x80;
}

// The first byte at or after `p` that needs a closer look inside a string (see specialByteFlags),
// or `end`. Strings are mostly plain ASCII, so this scans many bytes per step.
const char* skipPlainStringBytes(const char* p, const char* end) {
#if defined(__SSE2__)
  const __m128i quote = _mm_set1_epi8('"');
  const __m128i backslash = _mm_set1_epi8('\\');
  const __m128i space = _mm_set1_epi8(0x20);
  auto specialMask = [&](const char* at) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    // A signed compare: bytes of 0x80 and above are negative, so "below space" catches them too.
    const __m128i special =
        _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, quote), _mm_cmpeq_epi8(bytes, backslash)),
                     _mm_cmplt_epi8(bytes, space));
    return static_cast<unsigned>(_mm_movemask_epi8(special));
  };
  while (end - p >= 64) {
    const unsigned m0 = specialMask(p), m1 = specialMask(p + 16);
    const unsigned m2 = specialMask(p + 32), m3 = specialMask(p + 48);
    if ((m0 | m1 | m2 | m3) != 0) {
      const std::uint64_t mask = m0 | (m1 << 16) | (static_cast<std::uint64_t>(m2) << 32) |
                                 (static_cast<std::uint64_t>(m3) << 48);
      return p + __builtin_ctzll(mask);
    }
    p += 64;
  }
  while (end - p >= 16) {
    const unsigned mask = specialMask(p);
    if (mask != 0) return p + __builtin_ctz(mask);
    p += 16;
  }
#endif
  while (end - p >= 8) {
    std::uint64_t word;
    std::memcpy(&word, p, sizeof word);
    if (specialByteFlags(word) != 0) break;
    p += 8;
  }
  while (p != end && !isSpecialByte(*p)) ++p;
  return p;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

int hexDigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

class Parser {
 public:
  Parser(std::string_view text, std::size_t maxDepth)
      : begin_(text.data()),
        p_(text.data()),
        end_(text.data() + text.size()),
        maxDepth_(maxDepth) {}

  std::expected<JSONValue, JSONParseError> parseDocument() {
    JSONValue value;
    skipWhiteSpace();
    if (!parseValue(value, 0)) return std::unexpected(error_);
    skipWhiteSpace();
    if (p_ != end_) return std::unexpected(JSONParseError{Code::trailingContent, offset(p_)});
    return value;
  }

 private:
  const char* begin_;
  const char* p_;
  const char* end_;
  std::size_t maxDepth_;
  JSONParseError error_{Code::unexpectedEnd, 0};

  std::size_t offset(const char* at) const { return static_cast<std::size_t>(at - begin_); }

  bool fail(Code code, const char* at) {
    error_ = {code, offset(at)};
    return false;
  }

  void skipWhiteSpace() {
    while (p_ != end_ && (*p_ == ' ' || *p_ == '\n' || *p_ == '\r' || *p_ == '\t')) ++p_;
  }

  // `depth` counts the arrays and objects that enclose this value.
  bool parseValue(JSONValue& out, std::size_t depth) {
    if (p_ == end_) return fail(Code::unexpectedEnd, p_);
    switch (*p_) {
      case '{':
        return parseObject(out, depth);
      case '[':
        return parseArray(out, depth);
      case '"': {
        std::string text;
        if (!parseString(text)) return false;
        out = JSONValue(std::move(text));
        return true;
      }
      case 't':
        out = JSONValue(true);
        return parseLiteral("true");
      case 'f':
        out = JSONValue(false);
        return parseLiteral("false");
      case 'n':
        out = JSONValue(nullptr);
        return parseLiteral("null");
      default:
        if (*p_ == '-' || isDigit(*p_)) return parseNumber(out);
        return fail(Code::unexpectedCharacter, p_);
    }
  }

  bool parseLiteral(std::string_view literal) {
    for (char expected : literal) {
      if (p_ == end_) return fail(Code::unexpectedEnd, p_);
      if (*p_ != expected) return fail(Code::unexpectedCharacter, p_);
      ++p_;
    }
    return true;
  }

  bool openContainer(std::size_t depth) {
    if (depth >= maxDepth_) return fail(Code::tooDeep, p_);
    ++p_;
    skipWhiteSpace();
    return true;
  }

  // After a member or element: consumes the comma (true, more follow) or the closing bracket.
  bool continueOrClose(char closing, bool& more) {
    skipWhiteSpace();
    if (p_ == end_) return fail(Code::unexpectedEnd, p_);
    if (*p_ == ',') {
      ++p_;
      skipWhiteSpace();
      more = true;
      return true;
    }
    if (*p_ == closing) {
      ++p_;
      more = false;
      return true;
    }
    return fail(Code::unexpectedCharacter, p_);
  }

  bool parseArray(JSONValue& out, std::size_t depth) {
    if (!openContainer(depth)) return false;
    JSONValue::Array elements;
    if (p_ != end_ && *p_ == ']') {
      ++p_;
    } else {
      for (bool more = true; more;) {
        elements.emplace_back();
        if (!parseValue(elements.back(), depth + 1)) return false;
        if (!continueOrClose(']', more)) return false;
      }
    }
    out = JSONValue(std::move(elements));
    return true;
  }

  bool parseObject(JSONValue& out, std::size_t depth) {
    if (!openContainer(depth)) return false;
    JSONValue::Object members;
    if (p_ != end_ && *p_ == '}') {
      ++p_;
    } else {
      for (bool more = true; more;) {
        if (p_ == end_) return fail(Code::unexpectedEnd, p_);
        if (*p_ != '"') return fail(Code::unexpectedCharacter, p_);
        std::string name;
        if (!parseString(name)) return false;
        skipWhiteSpace();
        if (p_ == end_) return fail(Code::unexpectedEnd, p_);
        if (*p_ != ':') return fail(Code::unexpectedCharacter, p_);
        ++p_;
        skipWhiteSpace();
        JSONValue value;
        if (!parseValue(value, depth + 1)) return false;
        // A repeated name replaces the earlier member: the last one wins. Senders usually write
        // names in order, so the end is a good first guess for where the member belongs.
        members.insert_or_assign(members.end(), std::move(name), std::move(value));
        if (!continueOrClose('}', more)) return false;
      }
    }
    out = JSONValue(std::move(members));
    return true;
  }

  // Reads four hex digits after the "\u" at `escape`; false with the error set otherwise.
  bool parseHex4(const char* escape, std::uint32_t& value) {
    const char* digits = escape + 2;
    value = 0;
    for (int i = 0; i < 4; ++i) {
      if (digits + i == end_) return fail(Code::unexpectedEnd, end_);
      const int digit = hexDigitValue(digits[i]);
      if (digit < 0) return fail(Code::invalidEscape, escape);
      value = value * 16 + static_cast<std::uint32_t>(digit);
    }
    return true;
  }

  bool parseUnicodeEscape(std::string& out) {
    const char* escape = p_;
    std::uint32_t unit;
    if (!parseHex4(escape, unit)) return false;
    p_ = escape + 6;
    if (unit >= 0xDC00 && unit <= 0xDFFF) return fail(Code::invalidEscape, escape);
    if (unit >= 0xD800 && unit <= 0xDBFF) {
      // A high surrogate is only valid when a low one follows at once.
      if (end_ - p_ < 2 || p_[0] != '\\' || p_[1] != 'u') return fail(Code::invalidEscape, escape);
      std::uint32_t low;
      if (!parseHex4(p_, low)) return false;
      if (low < 0xDC00 || low > 0xDFFF) return fail(Code::invalidEscape, escape);
      p_ += 6;
      unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    appendUTF8(out, unit);
    return true;
  }

  bool parseEscape(std::string& out) {
    if (end_ - p_ < 2) return fail(Code::unexpectedEnd, end_);
    char decoded;
    switch (p_[1]) {
      case '"':
        decoded = '"';
        break;
      case '\\':
        decoded = '\\';
        break;
      case '/':
        decoded = '/';
        break;
      case 'b':
        decoded = '\b';
        break;
      case 'f':
        decoded = '\f';
        break;
      case 'n':
        decoded = '\n';
        break;
      case 'r':
        decoded = '\r';
        break;
      case 't':
        decoded = '\t';
        break;
      case 'u':
        return parseUnicodeEscape(out);
      default:
        return fail(Code::invalidEscape, p_);
    }
    out.push_back(decoded);
    p_ += 2;
    return true;
  }

  // `p_` is at the opening quote; leaves it after the closing one.
  bool parseString(std::string& out) {
    const char* run = ++p_;
    const char* p = skipPlainStringBytes(p_, end_);
    if (p != end_ && *p == '"') {  // the common case: nothing to decode
      out.assign(run, p);
      p_ = p + 1;
      return true;
    }
    out.clear();
    for (;;) {
      if (p == end_) return fail(Code::unexpectedEnd, p);
      const auto byte = static_cast<unsigned char>(*p);
      if (byte == '"') break;
      if (byte == '\\') {
        out.append(run, p);
        p_ = p;
        if (!parseEscape(out)) return false;
        p = run = p_;
      } else if (byte < 0x20) {
        return fail(Code::controlCharacter, p);
      } else {
        const std::size_t length = utf8SequenceLength(p, end_);
        if (length == 0) return fail(Code::invalidUTF8, p);
        p += length;
      }
      p = skipPlainStringBytes(p, end_);
    }
    out.append(run, p);
    p_ = p + 1;
    return true;
  }

  static const char* skipDigits(const char* p, const char* end) {
    while (p != end && isDigit(*p)) ++p;
    return p;
  }

  bool parseNumber(JSONValue& out) {
    const char* start = p_;
    const char* p = p_;
    if (*p == '-') ++p;
    if (p == end_ || !isDigit(*p)) return fail(Code::invalidNumber, p);
    const char* integerStart = p;
    if (*p == '0') {
      ++p;
      if (p != end_ && isDigit(*p)) return fail(Code::invalidNumber, p);
    } else {
      p = skipDigits(p, end_);
    }
    const char* integerEnd = p;
    if (p != end_ && *p == '.') {
      ++p;
      if (p == end_ || !isDigit(*p)) return fail(Code::invalidNumber, p);
      p = skipDigits(p, end_);
    }
    const char* exponentStart = nullptr;
    if (p != end_ && (*p == 'e' || *p == 'E')) {
      ++p;
      if (p != end_ && (*p == '+' || *p == '-')) ++p;
      if (p == end_ || !isDigit(*p)) return fail(Code::invalidNumber, p);
      exponentStart = p;
      p = skipDigits(p, end_);
    }
    double value = 0;
    const auto result = std::from_chars(start, p, value);
    if (result.ec == std::errc::result_out_of_range) {
      if (isOverflow(integerStart, integerEnd, exponentStart, p)) {
        return fail(Code::numberOutOfRange, start);
      }
      value = *start == '-' ? -0.0 : 0.0;  // too small for a double: the nearest is zero
    } else if (result.ec != std::errc() || result.ptr != p) {
      return fail(Code::invalidNumber, start);
    }
    out = JSONValue(value);
    p_ = p;
    return true;
  }

  // from_chars reports both overflow and underflow as out of range. The decimal exponent of the
  // first significant digit tells them apart: a number that does not fit and is at least 1 is too
  // large.
  static bool isOverflow(const char* integerStart, const char* integerEnd,
                         const char* exponentStart, const char* numberEnd) {
    long long magnitude;
    if (*integerStart != '0') {
      magnitude = integerEnd - integerStart - 1;
    } else {
      const char* fraction = integerEnd + 1;  // a number that does not fit is not plain zero
      const char* firstSignificant = fraction;
      while (firstSignificant != numberEnd && *firstSignificant == '0') ++firstSignificant;
      magnitude = -(firstSignificant - fraction + 1);
    }
    if (exponentStart != nullptr) {
      const bool negative = exponentStart[-1] == '-';
      long long exponent = 0;
      for (const char* d = exponentStart; d != numberEnd; ++d) {
        exponent = std::min(exponent * 10 + (*d - '0'), 1'000'000'000LL);
      }
      magnitude += negative ? -exponent : exponent;
    }
    return magnitude >= 0;
  }
};

}  // namespace

std::expected<JSONValue, JSONParseError> JSONReader::parse(std::string_view text,
                                                           std::size_t maxDepth) {
  return Parser(text, maxDepth).parseDocument();
}

}  // namespace tindra
