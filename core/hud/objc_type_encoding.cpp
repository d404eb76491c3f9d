#include "hud/objc_type_encoding.h"

#include <utility>

namespace tindra {

namespace {

constexpr std::string_view simpleCodes = "cislqCISLQfdDBv*#:?tT";
constexpr std::string_view qualifierCodes = "rnNoORV";

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  bool atEnd() const { return pos_ == text_.size(); }

  // One position's type code, or none when the text there is not a type.
  std::optional<std::string> type() {
    const std::size_t start = pos_;
    // Qualifiers and pointer marks are iterated, not recursed, so a long run cannot exhaust the
    // stack.
    while (!atEnd() && (qualifierCodes.find(peek()) != std::string_view::npos || peek() == '^')) {
      ++pos_;
    }
    if (atEnd()) return std::nullopt;
    const char c = peek();
    if (simpleCodes.find(c) != std::string_view::npos) {
      ++pos_;
      return std::string(text_.substr(start, pos_ - start));
    }
    if (c == '@') return object(start);
    if (c == '{' || c == '(' || c == '[') {
      if (!skipBracketed()) return std::nullopt;
      return std::string(text_.substr(start, pos_ - start));
    }
    return std::nullopt;
  }

  // Skips a frame offset; false for a minus sign without digits.
  bool skipOffset() {
    if (!atEnd() && peek() == '-') {
      ++pos_;
      if (atEnd() || !isDigit(peek())) return false;
    }
    while (!atEnd() && isDigit(peek())) ++pos_;
    return true;
  }

 private:
  char peek() const { return text_[pos_]; }

  // "@", a block "@?", or an object with its class name in quotes, which is dropped.
  std::optional<std::string> object(std::size_t start) {
    ++pos_;
    if (!atEnd() && peek() == '?') {
      ++pos_;
      return std::string(text_.substr(start, pos_ - start));
    }
    std::string code(text_.substr(start, pos_ - start));
    if (!atEnd() && peek() == '"' && !skipQuoted()) return std::nullopt;
    return code;
  }

  bool skipQuoted() {
    const std::size_t close = text_.find('"', pos_ + 1);
    if (close == std::string_view::npos) return false;
    pos_ = close + 1;
    return true;
  }

  // A struct, union or array with everything nested in it; brackets must pair up.
  bool skipBracketed() {
    std::string closers;
    while (true) {
      if (atEnd()) return false;
      const char c = peek();
      if (c == '"') {
        if (!skipQuoted()) return false;
        continue;
      }
      if (c == '{') closers.push_back('}');
      if (c == '(') closers.push_back(')');
      if (c == '[') closers.push_back(']');
      if (c == '}' || c == ')' || c == ']') {
        if (closers.empty() || closers.back() != c) return false;
        closers.pop_back();
      }
      ++pos_;
      if (closers.empty()) return true;
    }
  }

  std::string_view text_;
  std::size_t pos_ = 0;
};

}  // namespace

std::optional<std::vector<std::string>> ObjCTypeEncoding::parse(std::string_view encoding) {
  Scanner scanner(encoding);
  std::vector<std::string> codes;
  while (!scanner.atEnd()) {
    std::optional<std::string> code = scanner.type();
    if (!code || !scanner.skipOffset()) return std::nullopt;
    codes.push_back(std::move(*code));
  }
  if (codes.empty()) return std::nullopt;
  return codes;
}

}  // namespace tindra
