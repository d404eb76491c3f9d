#include "nowplaying/adapter_envelope.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <tuple>

namespace tindra {
namespace {

// More payload members than this are rare enough to leave to the reader, and keep the duplicate
// check from growing quadratically on hostile lines.
constexpr std::size_t maxPlainMembers = 64;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

constexpr auto plainStringByte = [] {
  std::array<bool, 256> plain{};
  for (int c = 0x20; c <= 0x7E; ++c) plain[c] = c != '"' && c != '\\';
  return plain;
}();

class PlainScanner {
 public:
  PlainScanner(std::string_view text, AdapterEnvelope& envelope)
      : p_(text.data()), end_(text.data() + text.size()), envelope_(envelope) {}

  bool run() {
    skipWhiteSpace();
    if (!consume('{')) return false;
    skipWhiteSpace();
    if (consume('}')) return finish();
    for (;;) {
      std::string_view name;
      if (!string(name) || !colon() || !topMember(name)) return false;
      skipWhiteSpace();
      if (consume('}')) return finish();
      if (!consume(',')) return false;
      skipWhiteSpace();
    }
  }

 private:
  bool finish() {
    skipWhiteSpace();
    return p_ == end_;
  }

  // Which of the names that matter were seen: a repeat of one of them is left to the reader,
  // whose last-one-wins rule the scan does not copy. Other names only need to be well formed.
  enum class TopName : unsigned { other = 0, type = 1, diff = 2, payload = 4 };

  static TopName classify(std::string_view name) {
    if (name == "type") return TopName::type;
    if (name == "diff") return TopName::diff;
    if (name == "payload") return TopName::payload;
    return TopName::other;
  }

  // A repeat of a name that matters is left to the reader, whose last-one-wins rule the scan
  // does not copy; other names only need to be well formed.
  bool topMember(std::string_view name) {
    const TopName kind = classify(name);
    const auto bit = static_cast<unsigned>(kind);
    if (seen_ & bit) return false;
    seen_ |= bit;
    if (kind == TopName::payload && p_ != end_ && *p_ == '{') return payload();
    std::string_view text;
    JSONValue value;
    const bool isString = p_ != end_ && *p_ == '"';
    if (!(isString ? string(text) : literalOrNumber(value))) return false;
    if (kind == TopName::type) {
      envelope_.typeIsString = isString;
      envelope_.type = text;
    } else if (kind == TopName::diff) {
      envelope_.diff = !isString && value.asBool() && *value.asBool();
    } else if (kind == TopName::payload) {
      envelope_.payloadIsObject = false;
      envelope_.payload.clear();
    }
    return true;
  }

  bool payload() {
    ++p_;
    envelope_.payloadIsObject = true;
    auto& members = envelope_.payload;
    members.clear();
    skipWhiteSpace();
    if (consume('}')) return true;
    for (;;) {
      std::string_view name;
      if (members.size() == maxPlainMembers || !string(name)) return false;
      for (const auto& member : members) {
        if (member.first == name) return false;
      }
      if (!colon()) return false;
      JSONValue& value =
          members
              .emplace_back(std::piecewise_construct, std::forward_as_tuple(name), std::tuple<>())
              .second;
      if (p_ != end_ && *p_ == '"') {
        std::string_view text;
        if (!string(text)) return false;
        value = JSONValue(text);
      } else if (!literalOrNumber(value)) {
        return false;
      }
      skipWhiteSpace();
      if (consume('}')) return true;
      if (!consume(',')) return false;
      skipWhiteSpace();
    }
  }

  bool colon() {
    skipWhiteSpace();
    if (!consume(':')) return false;
    skipWhiteSpace();
    return true;
  }

  // A string of printable ASCII other than the backslash: its text is its value.
  bool string(std::string_view& text) {
    if (!consume('"')) return false;
    const char* start = p_;
    while (p_ != end_ && plainStringByte[static_cast<unsigned char>(*p_)]) ++p_;
    if (p_ == end_ || *p_ != '"') return false;
    text = std::string_view(start, static_cast<std::size_t>(p_ - start));
    ++p_;
    return true;
  }

  bool literalOrNumber(JSONValue& value) {
    if (p_ == end_) return false;
    switch (*p_) {
      case 't':
        return literal("true", JSONValue(true), value);
      case 'f':
        return literal("false", JSONValue(false), value);
      case 'n':
        return literal("null", JSONValue(), value);
      default:
        return number(value);
    }
  }

  bool literal(std::string_view word, JSONValue meaning, JSONValue& value) {
    if (static_cast<std::size_t>(end_ - p_) < word.size()) return false;
    if (std::memcmp(p_, word.data(), word.size()) != 0) return false;
    p_ += word.size();
    value = std::move(meaning);
    return true;
  }

  // JSON's number grammar; a value out of a double's range is left to the reader.
  bool number(JSONValue& value) {
    const char* start = p_;
    const char* p = p_;
    const bool negative = p != end_ && *p == '-';
    if (negative) ++p;
    if (p == end_ || !isDigit(*p)) return false;
    const char* digits = p;
    std::uint64_t integer = 0;
    if (*p == '0') {
      ++p;
    } else {
      for (; p != end_ && isDigit(*p); ++p)
        integer = integer * 10 + static_cast<unsigned>(*p - '0');
    }
    bool plainInteger = p - digits <= 18;  // fits without wrapping
    if (p != end_ && *p == '.') {
      plainInteger = false;
      ++p;
      if (p == end_ || !isDigit(*p)) return false;
      while (p != end_ && isDigit(*p)) ++p;
    }
    if (p != end_ && (*p == 'e' || *p == 'E')) {
      plainInteger = false;
      ++p;
      if (p != end_ && (*p == '+' || *p == '-')) ++p;
      if (p == end_ || !isDigit(*p)) return false;
      while (p != end_ && isDigit(*p)) ++p;
    }
    double number = 0;
    if (plainInteger) {
      // Converting an exact integer rounds just as from_chars rounds its decimal text.
      const auto magnitude = static_cast<double>(integer);
      number = negative ? -magnitude : magnitude;  // "-0" stays negative zero
    } else {
      const auto result = std::from_chars(start, p, number);
      if (result.ec != std::errc() || result.ptr != p) return false;
    }
    value = JSONValue(number);
    p_ = p;
    return true;
  }

  bool consume(char c) {
    if (p_ == end_ || *p_ != c) return false;
    ++p_;
    return true;
  }

  void skipWhiteSpace() {
    while (p_ != end_ && (*p_ == ' ' || *p_ == '\t' || *p_ == '\r' || *p_ == '\n')) ++p_;
  }

  const char* p_;
  const char* end_;
  AdapterEnvelope& envelope_;
  unsigned seen_ = 0;
};

void reset(AdapterEnvelope& envelope) {
  envelope.typeIsString = false;
  envelope.type = {};
  envelope.diff = false;
  envelope.payloadIsObject = false;
  envelope.payload.clear();
  if (!envelope.tree.isNull()) envelope.tree = JSONValue();
}

}  // namespace

JSONValue* AdapterEnvelope::member(std::string_view name) {
  for (auto& [memberName, value] : payload) {
    if (memberName == name) return &value;
  }
  return nullptr;
}

bool scanPlainAdapterEnvelope(std::string_view line, AdapterEnvelope& envelope) {
  reset(envelope);
  return PlainScanner(line, envelope).run();
}

bool takeAdapterEnvelope(JSONValue tree, AdapterEnvelope& envelope) {
  reset(envelope);
  envelope.tree = std::move(tree);
  JSONValue::Object* root = envelope.tree.asObject();
  if (!root) return false;
  if (auto type = root->find("type"); type != root->end() && type->second.asString()) {
    envelope.typeIsString = true;
    envelope.type = *type->second.asString();
  }
  if (auto diff = root->find("diff"); diff != root->end() && diff->second.asBool()) {
    envelope.diff = *diff->second.asBool();
  }
  auto payload = root->find("payload");
  JSONValue::Object* members = payload == root->end() ? nullptr : payload->second.asObject();
  envelope.payloadIsObject = members != nullptr;
  if (members) {
    envelope.payload.reserve(members->size());
    for (auto& [name, value] : *members) envelope.payload.emplace_back(name, std::move(value));
  }
  return true;
}

}  // namespace tindra
