// FileTrayStoredParser: the tray's saved list as JSON text, {"version": 1, "items": [...]}, one
// object per item keyed by the field names. `addedAt` is seconds since 1970 as a JSON number
// (written in shortest round-trip form, so it reads back bit for bit); `id` is the UUID's text;
// `bookmark` is lower-case hex; absent optionals are left out. Reading refuses a newer version
// and skips (and counts) items that are malformed or break the admission rules.
#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

#include "base/enum_table.h"
#include "files/file_tray.h"

namespace tindra {

class FileTrayStoredParser {
 public:
  struct ParseError {
    enum class Code {
      notJSON,       // the text is not JSON at all
      notATray,      // JSON, but without a usable "version" or "items" array
      newerVersion,  // written by a newer Tindra; must not be read or overwritten
    };
    Code code;
    std::int64_t version = 0;  // the version found, for newerVersion
    friend bool operator==(const ParseError&, const ParseError&) = default;
  };

  struct Parsed {
    FileTray::Stored stored;
    int skippedItems = 0;  // items dropped as malformed, invalid or with a repeated id
  };

  static std::expected<Parsed, ParseError> parse(std::string_view text);
  // Pretty JSON text that `parse` reads back to an equal value.
  static std::string write(const FileTray::Stored& stored);
};

template <>
struct EnumTable<FileTrayStoredParser::ParseError::Code> {
  using E = FileTrayStoredParser::ParseError::Code;
  static constexpr std::array cases{EnumCase{E::notJSON, "notJSON"},
                                    EnumCase{E::notATray, "notATray"},
                                    EnumCase{E::newerVersion, "newerVersion"}};
};

}  // namespace tindra
