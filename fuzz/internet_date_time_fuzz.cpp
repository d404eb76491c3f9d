// Internet date-times on arbitrary text: never a crash, and every accepted text gives a finite
// time within the years 0000 to 9999 (give or take a day of zone offset).
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/internet_date_time.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (auto seconds = tindra::parseInternetDateTime(text)) {
    constexpr double year0 = -62167219200.0, year10000 = 253402300800.0, day = 86400;
    if (!std::isfinite(*seconds) || *seconds < year0 - day || *seconds > year10000 + day) {
      std::abort();
    }
  }
  return 0;
}
