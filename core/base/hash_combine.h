// Boost's hash mixing step: order-sensitive, so ("ab", "c") and ("a", "bc") hash apart.
#pragma once

#include <cstddef>

namespace tindra {

inline void hashCombine(std::size_t& seed, std::size_t value) {
  seed ^= value + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}

}  // namespace tindra
