// AirDropNotice: the files shown in the current "Received by AirDrop" notice. Files arriving
// within `mergeWindow` seconds of the last arrival join it; later ones start a new notice.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace tindra {

struct AirDropNotice {
  static constexpr double mergeWindow = 8;

  std::vector<std::string> files;  // in arrival order, without repeats
  double lastArrival = 0;          // seconds since 1970

  // Adds the files not yet shown and returns true, or returns false (leaving the notice as it
  // is) when more than `mergeWindow` seconds passed since the last arrival.
  bool merge(std::span<const std::string> arrived, double now);

  friend bool operator==(const AirDropNotice&, const AirDropNotice&) = default;
};

}  // namespace tindra
