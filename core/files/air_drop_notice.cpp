#include "files/air_drop_notice.h"

#include <algorithm>

namespace tindra {

bool AirDropNotice::merge(std::span<const std::string> arrived, double now) {
  if (now - lastArrival > mergeWindow) return false;
  for (const std::string& name : arrived) {
    if (std::ranges::find(files, name) == files.end()) files.push_back(name);
  }
  lastArrival = now;
  return true;
}

}  // namespace tindra
