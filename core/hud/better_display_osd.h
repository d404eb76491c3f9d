// BetterDisplayOSD: reads the on-screen-display notifications BetterDisplay posts (a JSON object
// naming the control and its value) into a level the notch can show. Unknown or malformed
// payloads give no result; never fails otherwise.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "hud/hud_kind.h"

namespace tindra {

struct BetterDisplayOSD {
  BetterDisplayOSD() = delete;

  // Longer payloads (in UTF-8 bytes) are not read at all.
  static constexpr std::size_t maxPayloadBytes = 16384;

  struct Result {
    HUDKind kind;
    double level;  // 0...1
    bool isMuted;
    friend bool operator==(const Result&, const Result&) = default;
  };

  static std::optional<Result> parse(std::string_view payload);
};

}  // namespace tindra
