// The vertical offset of the lock-screen widgets as used: the stored `lockWidgetOffset` clamped
// to -100...100 points, a non-finite value counting as 0.
#pragma once

namespace tindra {

inline constexpr double maxLockWidgetOffset = 100;

// `stored` in points, clamped.
double clampedLockWidgetOffset(double stored);

}  // namespace tindra
