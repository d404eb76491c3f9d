// FeaturedEvent: the one event the notch features now, and whether it is still ahead or under
// way. Phase seconds are never negative; an event starting exactly now has started(0).
#pragma once

#include "base/enum_table.h"
#include "calendar/calendar_event_info.h"

namespace tindra {

struct FeaturedEvent {
  class Phase {
   public:
    enum class Case { startsIn, started };

    static Phase startsIn(double seconds) { return {Case::startsIn, seconds}; }
    static Phase started(double seconds) { return {Case::started, seconds}; }

    Case phaseCase() const { return case_; }
    double seconds() const { return seconds_; }

    // Numeric comparison, so a NaN phase never equals itself.
    friend bool operator==(const Phase&, const Phase&) = default;

   private:
    Phase(Case c, double seconds) : case_(c), seconds_(seconds) {}
    Case case_;
    double seconds_;
  };

  CalendarEventInfo event;
  Phase phase;

  friend bool operator==(const FeaturedEvent&, const FeaturedEvent&) = default;
};

template <>
struct EnumTable<FeaturedEvent::Phase::Case> {
  using E = FeaturedEvent::Phase::Case;
  static constexpr std::array cases{EnumCase{E::startsIn, "startsIn"},
                                    EnumCase{E::started, "started"}};
};

}  // namespace tindra
