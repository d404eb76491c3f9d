// DepartureAdvice: what the notch tells about leaving: in so many minutes, now, or so many
// minutes late. Minutes are whole and at least 1; the minute either side of the departure time
// reads as leaveNow.
#pragma once

#include <cstdint>

#include "base/enum_table.h"

namespace tindra {

class DepartureAdvice {
 public:
  enum class Case { leaveIn, late, leaveNow };

  static DepartureAdvice leaveIn(std::int64_t minutes) { return {Case::leaveIn, minutes}; }
  static DepartureAdvice late(std::int64_t minutes) { return {Case::late, minutes}; }
  static DepartureAdvice leaveNow() { return {Case::leaveNow, 0}; }

  Case adviceCase() const { return case_; }
  std::int64_t minutes() const { return minutes_; }  // leaveIn, late

  friend bool operator==(const DepartureAdvice&, const DepartureAdvice&) = default;

 private:
  DepartureAdvice(Case c, std::int64_t minutes) : case_(c), minutes_(minutes) {}
  Case case_;
  std::int64_t minutes_;
};

template <>
struct EnumTable<DepartureAdvice::Case> {
  using E = DepartureAdvice::Case;
  static constexpr std::array cases{EnumCase{E::leaveIn, "leaveIn"}, EnumCase{E::late, "late"},
                                    EnumCase{E::leaveNow, "leaveNow"}};
};

}  // namespace tindra
