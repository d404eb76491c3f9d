// ActivityEvent: what a provider reports, that its kind began (for a time, or until ended) or
// ended.
#pragma once

#include <optional>

#include "activity/activity_kind.h"
#include "activity/notice_duration_scale.h"
#include "base/enum_table.h"

namespace tindra {

class ActivityEvent {
 public:
  enum class Case { began, ended };

  // `duration` in seconds; none means active until ended.
  static ActivityEvent began(ActivityKind kind, std::optional<double> duration = std::nullopt) {
    return ActivityEvent(Case::began, kind, duration);
  }
  static ActivityEvent ended(ActivityKind kind) {
    return ActivityEvent(Case::ended, kind, std::nullopt);
  }

  Case eventCase() const { return case_; }
  ActivityKind kind() const { return kind_; }
  std::optional<double> duration() const { return duration_; }

  // A began event of a notice kind with a present, finite, positive duration gets that duration
  // scaled; every other event comes back unchanged.
  ActivityEvent scaled(NoticeDurationScale scale) const;

  // Durations compare numerically, so a NaN duration never equals itself.
  friend bool operator==(const ActivityEvent& a, const ActivityEvent& b) {
    return a.case_ == b.case_ && a.kind_ == b.kind_ &&
           (a.case_ == Case::ended || a.duration_ == b.duration_);
  }

 private:
  ActivityEvent(Case c, ActivityKind kind, std::optional<double> duration)
      : case_(c), kind_(kind), duration_(duration) {}

  Case case_;
  ActivityKind kind_;
  std::optional<double> duration_;
};

template <>
struct EnumTable<ActivityEvent::Case> {
  using E = ActivityEvent::Case;
  static constexpr std::array cases{EnumCase{E::began, "began"}, EnumCase{E::ended, "ended"}};
};

}  // namespace tindra
