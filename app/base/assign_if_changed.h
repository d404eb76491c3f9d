// assignIfChanged: stores a new value only when it differs from the held one, so that a change
// signal is emitted for real changes alone.
#pragma once

#include <utility>

namespace tindra {

// True when `held` took `next` (it differed).
template <class T>
bool assignIfChanged(T& held, T next) {
  if (held == next) return false;
  held = std::move(next);
  return true;
}

}  // namespace tindra
