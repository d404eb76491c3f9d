// Unicode helpers for text the players and the artwork catalogue hand us: trimming white space
// the way people see it (no-break and ideographic spaces too) and folding text for matching.
// Malformed UTF-8 never fails: bad sequences are kept as they are when trimming and become
// U+FFFD when folding.
#pragma once

#include <string>
#include <string_view>

namespace tindra {

// `text` without leading and trailing Unicode white space (spaces, tabs, line breaks, U+00A0,
// U+3000 and the like).
std::string_view trimmedUnicodeWhitespace(std::string_view text);

// `text` with case folded and diacritics removed ("Beyoncé" and "BEYONCE" fold alike), in NFC.
std::string foldedCaseAndDiacritics(std::string_view text);

}  // namespace tindra
