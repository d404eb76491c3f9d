// UTF-8 well-formedness, shared by the JSON reader (which rejects bad text) and the writer
// (which must never emit it). Follows the Unicode table of well-formed byte sequences, so
// overlong forms, encoded surrogates and code points above U+10FFFF are all ill-formed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tindra {

// Length (2 to 4) of the well-formed multi-byte sequence starting at `p`, or 0 when the bytes
// from `p` up to `end` do not start one. `*p` must be a byte of 0x80 or above.
std::size_t utf8SequenceLength(const char* p, const char* end);

// Appends the UTF-8 form of `codePoint`, which must be a Unicode scalar value.
void appendUTF8(std::string& out, std::uint32_t codePoint);

}  // namespace tindra
