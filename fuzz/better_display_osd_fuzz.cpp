// BetterDisplay's notification payloads come from another program and may be anything.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "hud/better_display_osd.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto result = tindra::BetterDisplayOSD::parse(text);
  if (result) {
    if (size > tindra::BetterDisplayOSD::maxPayloadBytes) std::abort();
    if (!(result->level >= 0 && result->level <= 1)) std::abort();
    if (result->isMuted && result->kind != tindra::HUDKind::volume) std::abort();
  }
  return 0;
}
