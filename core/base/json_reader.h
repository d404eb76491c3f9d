// JSONReader: a strict RFC 8259 reader. Rejects trailing commas, comments, leading zeros, a byte
// order mark, invalid UTF-8, lone surrogates and nesting deeper than `maxDepth`; reports the byte
// where it stopped. A name repeated within an object keeps the value it was given last.
#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

#include "base/enum_table.h"
#include "base/json_value.h"

namespace tindra {

struct JSONParseError {
  enum class Code : std::uint8_t {
    unexpectedEnd,        // the text stops inside a value
    unexpectedCharacter,  // a character that cannot start or continue the value here
    invalidNumber,        // a number that breaks the grammar (leading zero, lone minus, "1.", "1e")
    numberOutOfRange,     // a number too large for a double
    invalidEscape,        // "\x", a short "\u", or a lone or mismatched surrogate
    invalidUTF8,          // bytes that are not well-formed UTF-8
    controlCharacter,     // an unescaped control character inside a string
    tooDeep,              // arrays and objects nested deeper than allowed
    trailingContent,      // something other than white space after the value
  };
  Code code;
  std::size_t offset;  // byte offset in the text where the fault was found

  // "invalid JSON at byte 12: unexpected character", for logs and diagnostics.
  std::string message() const;
  friend bool operator==(const JSONParseError&, const JSONParseError&) = default;
};

template <>
struct EnumTable<JSONParseError::Code> {
  using E = JSONParseError::Code;
  static constexpr std::array cases{EnumCase{E::unexpectedEnd, "unexpectedEnd"},
                                    EnumCase{E::unexpectedCharacter, "unexpectedCharacter"},
                                    EnumCase{E::invalidNumber, "invalidNumber"},
                                    EnumCase{E::numberOutOfRange, "numberOutOfRange"},
                                    EnumCase{E::invalidEscape, "invalidEscape"},
                                    EnumCase{E::invalidUTF8, "invalidUTF8"},
                                    EnumCase{E::controlCharacter, "controlCharacter"},
                                    EnumCase{E::tooDeep, "tooDeep"},
                                    EnumCase{E::trailingContent, "trailingContent"}};
};

class JSONReader {
 public:
  static constexpr std::size_t defaultMaxDepth = 512;

  // The value `text` holds. `maxDepth` bounds how many arrays and objects may enclose one another
  // (0 allows only a scalar); each level costs a few hundred bytes of stack. Numbers too small for
  // a double read as zero.
  static std::expected<JSONValue, JSONParseError> parse(std::string_view text,
                                                        std::size_t maxDepth = defaultMaxDepth);
};

}  // namespace tindra
