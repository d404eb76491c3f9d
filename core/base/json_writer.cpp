#include "base/json_writer.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "base/utf8.h"

namespace tindra {

namespace {

// Doubles hold every integer up to 2^53 exactly; those are written as plain digits, so a count or
// a timestamp reads as "1700000000" rather than "1.7e+09".
constexpr double largestExactInteger = 9007199254740992.0;

void appendNumber(std::string& out, double number) {
  if (!std::isfinite(number)) {
    out += "null";
    return;
  }
  std::array<char, 32> buffer{};
  char* const first = buffer.data();
  char* const last = first + buffer.size();
  std::to_chars_result result{};
  if (number == std::trunc(number) && std::fabs(number) <= largestExactInteger) {
    if (number == 0 && std::signbit(number)) {
      out += "-0";
      return;
    }
    result = std::to_chars(first, last, static_cast<std::int64_t>(number));
  } else {
    result = std::to_chars(first, last, number);
  }
  out.append(first, result.ptr);
}

void appendEscapedControl(std::string& out, unsigned char byte) {
  switch (byte) {
    case '\b':
      out += "\\b";
      return;
    case '\f':
      out += "\\f";
      return;
    case '\n':
      out += "\\n";
      return;
    case '\r':
      out += "\\r";
      return;
    case '\t':
      out += "\\t";
      return;
    default:
      break;
  }
  constexpr std::string_view hex = "0123456789abcdef";
  out += "\\u00";
  out.push_back(hex[byte >> 4]);
  out.push_back(hex[byte & 0xF]);
}

// Quotes `text`. Bytes that are not well-formed UTF-8 (only possible in values built in code)
// become U+FFFD, so the output is always text the reader accepts.
void appendString(std::string& out, const std::string& text) {
  out.push_back('"');
  const char* p = text.data();
  const char* end = p + text.size();
  const char* run = p;
  while (p != end) {
    const auto byte = static_cast<unsigned char>(*p);
    if (byte >= 0x20 && byte < 0x80 && byte != '"' && byte != '\\') {
      ++p;
      continue;
    }
    if (byte >= 0x80) {
      const std::size_t length = utf8SequenceLength(p, end);
      if (length != 0) {
        p += length;
        continue;
      }
    }
    out.append(run, p);
    if (byte == '"' || byte == '\\') {
      out.push_back('\\');
      out.push_back(static_cast<char>(byte));
    } else if (byte < 0x20) {
      appendEscapedControl(out, byte);
    } else {
      out += "\xEF\xBF\xBD";
    }
    run = ++p;
  }
  out.append(run, p);
  out.push_back('"');
}

class Writer {
 public:
  explicit Writer(bool pretty) : pretty_(pretty) {}

  std::string take() { return std::move(out_); }

  void write(const JSONValue& value, int depth) {
    switch (value.type()) {
      case JSONValue::Type::null:
        out_ += "null";
        break;
      case JSONValue::Type::boolean:
        out_ += *value.asBool() ? "true" : "false";
        break;
      case JSONValue::Type::number:
        appendNumber(out_, *value.asNumber());
        break;
      case JSONValue::Type::string:
        appendString(out_, *value.asString());
        break;
      case JSONValue::Type::array:
        writeArray(*value.asArray(), depth);
        break;
      case JSONValue::Type::object:
        writeObject(*value.asObject(), depth);
        break;
    }
  }

 private:
  bool pretty_;
  std::string out_;

  void newLine(int depth) {
    if (!pretty_) return;
    out_.push_back('\n');
    out_.append(static_cast<std::size_t>(depth) * 2, ' ');
  }

  void writeArray(const JSONValue::Array& elements, int depth) {
    out_.push_back('[');
    bool first = true;
    for (const JSONValue& element : elements) {
      if (!first) out_.push_back(',');
      first = false;
      newLine(depth + 1);
      write(element, depth + 1);
    }
    if (!elements.empty()) newLine(depth);
    out_.push_back(']');
  }

  void writeObject(const JSONValue::Object& members, int depth) {
    out_.push_back('{');
    bool first = true;
    for (const auto& [name, member] : members) {
      if (!first) out_.push_back(',');
      first = false;
      newLine(depth + 1);
      appendString(out_, name);
      out_ += pretty_ ? ": " : ":";
      write(member, depth + 1);
    }
    if (!members.empty()) newLine(depth);
    out_.push_back('}');
  }
};

std::string writeValue(const JSONValue& value, bool pretty) {
  Writer writer(pretty);
  writer.write(value, 0);
  return writer.take();
}

}  // namespace

std::string JSONWriter::write(const JSONValue& value) {
  return writeValue(value, false);
}

std::string JSONWriter::writePretty(const JSONValue& value) {
  return writeValue(value, true);
}

}  // namespace tindra
