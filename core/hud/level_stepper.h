// LevelStepper: what one key press does to a level in 0...1. Presses move on a grid of 16 coarse
// or 64 fine steps; a level close to a grid point counts as on it, one between points moves to
// the next point in the direction of travel and never snaps back.
#pragma once

namespace tindra {

struct LevelStepper {
  LevelStepper() = delete;

  static constexpr int coarseSteps = 16;
  static constexpr int fineSteps = 64;
  // How far (in steps) a level may lie from a grid point and still count as on it.
  static constexpr double onGridTolerance = 0.25;

  // The level after one press up or down, on the fine grid when `fine`; always in 0...1.
  static double step(bool up, bool fine, double level);

  // NaN, infinities and negatives become 0; values above 1 become 1.
  static double clampedLevel(double level);
};

}  // namespace tindra
