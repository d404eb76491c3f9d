// Parses arbitrary player output as each of the four players. Whatever the bytes, a parsed
// track must satisfy what the model promises: a non-empty title and times within 0 ... 7 days.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "nowplaying/apple_script_player.h"

using namespace tindra;

namespace {

bool withinSevenDays(const std::optional<double>& seconds) {
  return !seconds || (std::isfinite(*seconds) && *seconds >= 0 && *seconds <= 604'800);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view output(reinterpret_cast<const char*>(data), size);
  for (AppleScriptPlayer player : allCases<AppleScriptPlayer>()) {
    const AppleScriptPlayerStatus status = parse(player, output, 1000);
    if (status.kind != AppleScriptPlayerStatus::Kind::playing) {
      if (status.snapshot) std::abort();
      continue;
    }
    const NowPlayingSnapshot& snapshot = status.snapshot.value();
    if (snapshot.title.empty() || !withinSevenDays(snapshot.duration) ||
        !withinSevenDays(snapshot.elapsed) || snapshot.duration == 0.0) {
      std::abort();
    }
    if (snapshot.elapsed.has_value() != snapshot.elapsedTimestamp.has_value()) std::abort();
  }
  return 0;
}
