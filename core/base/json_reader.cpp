#include "base/json_reader.h"

#include <deque>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "base/utf8.h"

namespace tindra {

namespace {

const char* reasonText(JSONParseError::Code code) {
  using Code = JSONParseError::Code;
  switch (code) {
    case Code::unexpectedEnd:
      return "the text ends inside a value";
    case Code::unexpectedCharacter:
      return "unexpected character";
    case Code::invalidNumber:
      return "malformed number";
    case Code::numberOutOfRange:
      return "number too large";
    case Code::invalidEscape:
      return "invalid escape sequence";
    case Code::invalidUTF8:
      return "invalid UTF-8";
    case Code::controlCharacter:
      return "unescaped control character in a string";
    case Code::tooDeep:
      return "arrays and objects nested too deeply";
    case Code::trailingContent:
      return "unexpected text after the value";
  }
  return "";
}

}  // namespace

std::string JSONParseError::message() const {
  return "invalid JSON at byte " + std::to_string(offset) + ": " + reasonText(code);
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

#if defined(__SSE2__)
// Bit i set when byte i of the 16 at `at` would end a plain run (see specialByteFlags).
unsigned specialByteMask(const char* at) {
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
  // A signed compare: bytes of 0x80 and above are negative, so "below space" catches them too.
  const __m128i special = _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')),
                                                    _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'))),
                                       _mm_cmplt_epi8(bytes, _mm_set1_epi8(0x20)));
  return static_cast<unsigned>(_mm_movemask_epi8(special));
}
#endif

// skipPlainStringBytes past its first block: long strides for long strings.
[[gnu::noinline]] const char* skipLongPlainRun(const char* p, const char* end) {
#if defined(__SSE2__)
  while (end - p >= 64) {
    const unsigned m0 = specialByteMask(p);
    const unsigned m1 = specialByteMask(p + 16);
    const unsigned m2 = specialByteMask(p + 32);
    const unsigned m3 = specialByteMask(p + 48);
    if ((m0 | m1 | m2 | m3) != 0) {
      const std::uint64_t mask = m0 | (m1 << 16) | (static_cast<std::uint64_t>(m2) << 32) |
                                 (static_cast<std::uint64_t>(m3) << 48);
      return p + __builtin_ctzll(mask);
    }
    p += 64;
  }
  while (end - p >= 16) {
    const unsigned mask = specialByteMask(p);
    if (mask != 0) return p + __builtin_ctz(mask);
    p += 16;
  }
#endif
  while (end - p >= 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, p, sizeof word);
    if (specialByteFlags(word) != 0) break;
    p += 8;
  }
  while (p != end && !isSpecialByte(*p)) ++p;
  return p;
}

// The first byte at or after `p` that needs a closer look inside a string (see specialByteFlags),
// or `end`. Strings are mostly plain ASCII, so this scans many bytes per step; most names and
// values are short, so the first block is checked right here.
inline const char* skipPlainStringBytes(const char* p, const char* end) {
#if defined(__SSE2__)
  if (end - p >= 16) {
    const unsigned mask = specialByteMask(p);
    if (mask != 0) return p + __builtin_ctz(mask);
    p += 16;
  }
#endif
  return skipLongPlainRun(p, end);
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::uint64_t digitValue(char c) {
  return static_cast<std::uint64_t>(c - '0');
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
    skipWhiteSpace();
    JSONValue document;
    parseValue(0,
               [&](auto&& value) { document = JSONValue(std::forward<decltype(value)>(value)); });
    if (failed_) return std::unexpected(error_);
    skipWhiteSpace();
    if (p_ != end_) {
      return std::unexpected(JSONParseError{.code = Code::trailingContent, .offset = offset(p_)});
    }
    return document;
  }

 private:
  const char* begin_;
  const char* p_;
  const char* end_;
  std::size_t maxDepth_;
  bool failed_ = false;
  JSONParseError error_{.code = Code::unexpectedEnd, .offset = 0};
  std::string decodedName_;

  std::size_t offset(const char* at) const { return static_cast<std::size_t>(at - begin_); }

  // Records the first fault; the callers unwind as soon as they see `failed_`.
  void fail(Code code, const char* at) {
    if (!failed_) error_ = {.code = code, .offset = offset(at)};
    failed_ = true;
  }

  bool stop(Code code, const char* at) {
    fail(code, at);
    return false;
  }

  static bool isWhiteSpace(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

  void skipWhiteSpace() {
    // Compact text has none: anything above space ends it at once.
    while (p_ != end_ && static_cast<unsigned char>(*p_) <= ' ' && isWhiteSpace(*p_)) ++p_;
  }

  // Reads one value and hands it to `deliver` as the std::string, double, bool, nullptr, Array or
  // Object it is, so the JSONValue is built once, where it will live, instead of being moved
  // there. `depth` counts the arrays and objects that enclose the value.
  template <class Deliver>
  void parseValue(std::size_t depth, const Deliver& deliver) {
    if (p_ == end_) {
      fail(Code::unexpectedEnd, p_);
      return;
    }
    switch (*p_) {
      case '{': {
        JSONValue::Object members;
        if (parseObject(depth, members)) deliver(std::move(members));
        return;
      }
      case '[': {
        JSONValue::Array elements;
        if (parseArray(depth, elements)) deliver(std::move(elements));
        return;
      }
      case '"': {
        std::string text = parseString();
        if (!failed_) deliver(std::move(text));
        return;
      }
      case 't':
        if (parseLiteral("true")) deliver(true);
        return;
      case 'f':
        if (parseLiteral("false")) deliver(false);
        return;
      case 'n':
        if (parseLiteral("null")) deliver(nullptr);
        return;
      default: {
        if (*p_ != '-' && !isDigit(*p_)) {
          fail(Code::unexpectedCharacter, p_);
          return;
        }
        double number = 0;
        if (parseNumber(number)) deliver(number);
        return;
      }
    }
  }

  bool parseLiteral(std::string_view literal) {
    if (static_cast<std::size_t>(end_ - p_) >= literal.size() &&
        std::memcmp(p_, literal.data(), literal.size()) == 0) {
      p_ += literal.size();
      return true;
    }
    for (char expected : literal) {  // find where it went wrong
      if (p_ == end_) return stop(Code::unexpectedEnd, p_);
      if (*p_ != expected) return stop(Code::unexpectedCharacter, p_);
      ++p_;
    }
    return true;
  }

  bool openContainer(std::size_t depth) {
    if (depth >= maxDepth_) return stop(Code::tooDeep, p_);
    ++p_;
    skipWhiteSpace();
    return true;
  }

  // After a member or element: consumes the comma (true, more follow) or the closing bracket.
  bool continueOrClose(char closing) {
    skipWhiteSpace();
    if (p_ == end_) return stop(Code::unexpectedEnd, p_);
    if (*p_ == ',') {
      ++p_;
      skipWhiteSpace();
      return true;
    }
    if (*p_ != closing) return stop(Code::unexpectedCharacter, p_);
    ++p_;
    return false;
  }

  bool parseArray(std::size_t depth, JSONValue::Array& elements) {
    if (!openContainer(depth)) return false;
    if (p_ != end_ && *p_ == ']') {
      ++p_;
      return true;
    }
    auto append = [&](auto&& value) {
      elements.emplace_back(std::forward<decltype(value)>(value));
    };
    for (bool more = true; more; more = continueOrClose(']')) {
      parseValue(depth + 1, append);
      if (failed_) return false;
    }
    return !failed_;
  }

  bool parseObject(std::size_t depth, JSONValue::Object& members) {
    if (!openContainer(depth)) return false;
    if (p_ != end_ && *p_ == '}') {
      ++p_;
      return true;
    }
    // Members collect in a buffer kept for this depth and thread, so that building the object
    // costs one allocation of the right size.
    JSONValue::Object::Members& arrived = scratch(depth);
    arrived.clear();
    std::string nameHeldAside;
    for (bool more = true; more; more = continueOrClose('}')) {
      if (p_ == end_) return stop(Code::unexpectedEnd, p_);
      if (*p_ != '"') return stop(Code::unexpectedCharacter, p_);
      std::string_view name = parseName();
      if (failed_) return false;
      skipWhiteSpace();
      if (p_ == end_) return stop(Code::unexpectedEnd, p_);
      if (*p_ != ':') return stop(Code::unexpectedCharacter, p_);
      ++p_;
      skipWhiteSpace();
      if (name.data() == decodedName_.data()) {  // the value's own members may reuse that buffer
        nameHeldAside = name;
        name = nameHeldAside;
      }
      parseValue(depth + 1, [&](auto&& value) {
        arrived.emplace_back(std::piecewise_construct, std::forward_as_tuple(name),
                             std::forward_as_tuple(std::forward<decltype(value)>(value)));
      });
      if (failed_) return false;
    }
    members.adopt(arrived);  // a repeated name: the last one wins
    arrived.clear();
    // A huge object should not keep its buffer's memory for the rest of the thread's life.
    if (arrived.capacity() > 4096) JSONValue::Object::Members().swap(arrived);
    return !failed_;
  }

  static JSONValue::Object::Members& scratch(std::size_t depth) {
    // A deque: deeper levels may be added while a shallower buffer is in use.
    thread_local std::deque<JSONValue::Object::Members> buffers;
    while (buffers.size() <= depth) buffers.emplace_back();
    return buffers[depth];
  }

  // Reads four hex digits after the "\u" at `escape`.
  bool parseHex4(const char* escape, std::uint32_t& value) {
    const char* digits = escape + 2;
    value = 0;
    for (int i = 0; i < 4; ++i) {
      if (digits + i == end_) return stop(Code::unexpectedEnd, end_);
      const int digit = hexDigitValue(digits[i]);
      if (digit < 0) return stop(Code::invalidEscape, escape);
      value = (value * 16) + static_cast<std::uint32_t>(digit);
    }
    return true;
  }

  bool parseUnicodeEscape(std::string& out) {
    const char* escape = p_;
    std::uint32_t unit = 0;
    if (!parseHex4(escape, unit)) return false;
    p_ = escape + 6;
    if (unit >= 0xDC00 && unit <= 0xDFFF) return stop(Code::invalidEscape, escape);
    if (unit >= 0xD800 && unit <= 0xDBFF) {
      // A high surrogate is only valid when a low one follows at once.
      if (end_ - p_ < 2 || p_[0] != '\\' || p_[1] != 'u') return stop(Code::invalidEscape, escape);
      std::uint32_t low = 0;
      if (!parseHex4(p_, low)) return false;
      if (low < 0xDC00 || low > 0xDFFF) return stop(Code::invalidEscape, escape);
      p_ += 6;
      unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    appendUTF8(out, unit);
    return true;
  }

  static char decodedShortEscape(char c) {
    switch (c) {
      case '"':
        return '"';
      case '\\':
        return '\\';
      case '/':
        return '/';
      case 'b':
        return '\b';
      case 'f':
        return '\f';
      case 'n':
        return '\n';
      case 'r':
        return '\r';
      case 't':
        return '\t';
      default:
        return 0;
    }
  }

  // `p_` is at the backslash; leaves it after the escape.
  bool parseEscape(std::string& out) {
    if (end_ - p_ < 2) return stop(Code::unexpectedEnd, end_);
    if (p_[1] == 'u') return parseUnicodeEscape(out);
    const char decoded = decodedShortEscape(p_[1]);
    if (decoded == 0) return stop(Code::invalidEscape, p_);
    out.push_back(decoded);
    p_ += 2;
    return true;
  }

  // A member name: a view of the text itself when it holds no escapes, else of `decodedName_`.
  std::string_view parseName() {
    const char* run = ++p_;
    const char* p = skipPlainStringBytes(run, end_);
    if (p != end_ && *p == '"') {
      p_ = p + 1;
      return {run, static_cast<std::size_t>(p - run)};
    }
    decodedName_.assign(run, p);
    if (!decodeRestOfString(p, decodedName_)) return {};
    return decodedName_;
  }

  // `p_` is at the opening quote; leaves it after the closing one.
  std::string parseString() {
    const char* run = ++p_;
    const char* p = skipPlainStringBytes(run, end_);
    if (p != end_ && *p == '"') {  // the common case: nothing to decode or check
      p_ = p + 1;
      return {run, p};
    }
    std::string text(run, p);
    if (!decodeRestOfString(p, text)) return {};
    return text;
  }

  // Continues a string at the first byte that needs a closer look.
  bool decodeRestOfString(const char* p, std::string& out) {
    const char* run = p;
    for (;;) {
      if (p == end_) return stop(Code::unexpectedEnd, p);
      const auto byte = static_cast<unsigned char>(*p);
      if (byte == '"') break;
      if (byte == '\\') {
        out.append(run, p);
        p_ = p;
        if (!parseEscape(out)) return false;
        p = run = p_;
      } else if (byte < 0x20) {
        return stop(Code::controlCharacter, p);
      } else {
        const std::size_t length = utf8SequenceLength(p, end_);
        if (length == 0) return stop(Code::invalidUTF8, p);
        p += length;
      }
      p = skipPlainStringBytes(p, end_);
    }
    out.append(run, p);
    p_ = p + 1;
    return true;
  }

  // Reads a number, checking the grammar and gathering its digits in one pass. In most numbers
  // the digits, read as an integer, stay within 2^53 and the power of ten within 22: then both are
  // exact doubles and one multiplication or division rounds correctly (Clinger's fast path).
  // from_chars reads the rest.
  bool parseNumber(double& value) {
    static constexpr std::array<double, 23> powersOfTen = {
        1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
        1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr int maxGatheredDigits = 19;  // what a 64-bit integer holds without wrapping
    constexpr std::uint64_t maxExactDigits = std::uint64_t{1} << 53;
    constexpr int maxExactPower = 22;
    const char* start = p_;
    const char* p = p_;
    const bool negative = *p == '-';
    if (negative) ++p;
    if (p == end_ || !isDigit(*p)) return stop(Code::invalidNumber, p);
    const char* integerStart = p;
    std::uint64_t digits = 0;  // wraps harmlessly when there are too many to use
    std::int64_t digitCount = 0;
    std::int64_t power = 0;
    if (*p == '0') {
      ++p;
      if (p != end_ && isDigit(*p)) return stop(Code::invalidNumber, p);
    } else {
      for (; p != end_ && isDigit(*p); ++p, ++digitCount) digits = (digits * 10) + digitValue(*p);
    }
    const char* integerEnd = p;
    if (p != end_ && *p == '.') {
      ++p;
      if (p == end_ || !isDigit(*p)) return stop(Code::invalidNumber, p);
      for (; p != end_ && isDigit(*p); ++p, ++digitCount, --power) {
        digits = (digits * 10) + digitValue(*p);
      }
    }
    // As written, held below a bound that no count of digits in a text in memory comes near.
    std::int64_t exponent = 0;
    constexpr std::int64_t exponentBound = 1'000'000'000'000'000;
    if (p != end_ && (*p == 'e' || *p == 'E')) {
      ++p;
      const bool negativeExponent = p != end_ && *p == '-';
      if (p != end_ && (*p == '+' || *p == '-')) ++p;
      if (p == end_ || !isDigit(*p)) return stop(Code::invalidNumber, p);
      for (; p != end_ && isDigit(*p); ++p) {
        exponent =
            std::min((exponent * 10) + static_cast<std::int64_t>(digitValue(*p)), exponentBound);
      }
      if (negativeExponent) exponent = -exponent;
      power += exponent;
    }
    if (digitCount <= maxGatheredDigits && digits <= maxExactDigits && power >= -maxExactPower &&
        power <= maxExactPower) {
      const auto exact = static_cast<double>(digits);
      const auto index = static_cast<std::size_t>(power < 0 ? -power : power);
      const double scale = powersOfTen[index];  // NOLINT(*-constant-array-index): 22 at most
      value = power < 0 ? exact / scale : exact * scale;
      if (negative) value = -value;
      p_ = p;
      return true;
    }
    const auto result = std::from_chars(start, p, value);
    if (result.ec == std::errc::result_out_of_range) {
      if (isOverflow(integerStart, integerEnd, p, exponent)) {
        return stop(Code::numberOutOfRange, start);
      }
      value = negative ? -0.0 : 0.0;  // too small for a double: the nearest is zero
    } else if (result.ec != std::errc() || result.ptr != p) {
      return stop(Code::invalidNumber, start);
    }
    p_ = p;
    return true;
  }

  // from_chars reports both overflow and underflow as out of range. The decimal exponent of the
  // first significant digit tells them apart: a number that does not fit and is at least 1 is too
  // large.
  static bool isOverflow(const char* integerStart, const char* integerEnd, const char* numberEnd,
                         std::int64_t exponent) {
    std::ptrdiff_t magnitude = integerEnd - integerStart - 1;
    if (*integerStart == '0') {
      const char* fraction = integerEnd + 1;  // a number that does not fit is not plain zero
      const char* firstSignificant = fraction;
      while (firstSignificant != numberEnd && *firstSignificant == '0') ++firstSignificant;
      magnitude = -(firstSignificant - fraction + 1);
    }
    return magnitude + exponent >= 0;
  }
};

}  // namespace

std::expected<JSONValue, JSONParseError> JSONReader::parse(std::string_view text,
                                                           std::size_t maxDepth) {
  return Parser(text, maxDepth).parseDocument();
}

}  // namespace tindra
