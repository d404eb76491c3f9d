// Reads arbitrary bytes as a forecast document at a fixed moment. Whatever parses must give a
// snapshot whose stored JSON form reads back equal, and a chosen step no further than two hours
// from that moment.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "weather/met_forecast_parser.h"
#include "weather/weather_snapshot.h"

namespace {

// 2022-05-18T21:30:00Z, inside the seed documents' series.
constexpr double kNow = 1652909400;

[[noreturn]] void fail(const char* why) {
  std::fprintf(stderr, "%s\n", why);
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto snapshot =
      tindra::METForecastParser::parse(text, {59.91, 10.75}, kNow, kNow, kNow + 1800, "x");
  if (!snapshot.has_value()) return 0;
  if (!std::isfinite(snapshot->temperature)) fail("temperature not finite");
  if (std::fabs(snapshot->validAt - kNow) >= tindra::METForecastParser::currentStepReach) {
    fail("chosen step is not current");
  }
  const auto hours = snapshot->precipitationHours;
  if (hours && *hours != 1 && *hours != 6 && *hours != 12) fail("odd precipitation hours");
  if (tindra::decodeWeatherSnapshot(tindra::encodeWeatherSnapshot(*snapshot)) != *snapshot) {
    fail("snapshot does not survive its JSON form");
  }
  return 0;
}
