// QuarantineInfo: what the "com.apple.quarantine" attribute of a downloaded file says: the agent
// that quarantined it and, when readable, when. The raw value is "flags;hex time;agent;…".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tindra {

struct QuarantineInfo {
  std::string agent;
  std::optional<double> date;  // seconds since 1970

  // The info in `value`; nullopt when it has fewer than three ";"-separated pieces. A time that
  // is empty, not hexadecimal or beyond a signed 64-bit integer leaves `date` empty.
  static std::optional<QuarantineInfo> parse(std::string_view value);

  friend bool operator==(const QuarantineInfo&, const QuarantineInfo&) = default;
};

}  // namespace tindra
