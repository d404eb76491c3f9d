// OwnWrites: the levels Tindra itself wrote in the last moment, so that the service's reports of
// them (late, and out of step when keys are pressed quickly) are not taken for changes made by
// somebody else and shown a second time, or shown going backwards.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "hud/hud_state.h"

namespace tindra {

class OwnWrites {
 public:
  // A report this long after a write can still be its echo.
  static constexpr double window = 1.0;
  // Half a coarse step: room for the service rounding the level to its own scale.
  static constexpr double tolerance = 1.0 / 32;

  void remember(const HUDState& state, double at) {
    std::erase_if(writes_, [at](const Write& write) { return !(at - write.at < window); });
    writes_.push_back({state, at});
  }

  bool isEcho(const HUDState& reported, double now) const {
    return std::ranges::any_of(writes_, [&](const Write& write) {
      const double age = now - write.at;
      return age >= 0 && age < window && write.state.kind() == reported.kind() &&
             write.state.isMuted() == reported.isMuted() &&
             std::abs(write.state.level() - reported.level()) <= tolerance;
    });
  }

 private:
  struct Write {
    HUDState state;
    double at;
  };
  std::vector<Write> writes_;
};

}  // namespace tindra
