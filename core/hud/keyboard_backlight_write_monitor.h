// KeyboardBacklightWriteMonitor: checks each keyboard-backlight write by reading the level back,
// because some machines silently ignore writes. Two ignored writes in a row mean giving up.
#pragma once

#include <array>

#include "base/enum_table.h"

namespace tindra {

class KeyboardBacklightWriteMonitor {
 public:
  enum class Verdict { effective, noEffect, inconclusive };

  // A request closer than this to the old level cannot show whether the write worked.
  static constexpr double smallestJudgedChange = 1.0 / 128;
  // A read-back this close to the request means the write took.
  static constexpr double effectiveTolerance = 0.04;
  // A read-back this close to the old level means the hardware did not move.
  static constexpr double unmovedTolerance = 0.004;
  static constexpr int giveUpAfter = 2;

  // Judges one write from the level before it, the level asked for and the level read after.
  static Verdict verdict(double before, double requested, double after);

  // Counts the verdict; true once the writes should be given up.
  bool record(Verdict verdict);

  int ineffectiveInARow() const { return ineffectiveInARow_; }

 private:
  int ineffectiveInARow_ = 0;
};

template <>
struct EnumTable<KeyboardBacklightWriteMonitor::Verdict> {
  using E = KeyboardBacklightWriteMonitor::Verdict;
  static constexpr std::array cases{EnumCase{E::effective, "effective"},
                                    EnumCase{E::noEffect, "noEffect"},
                                    EnumCase{E::inconclusive, "inconclusive"}};
};

}  // namespace tindra
