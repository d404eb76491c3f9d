// ActivityCoordinator: keeps one entry per activity kind, lets timed entries lapse and answers
// which kind the notch shows now (the active one of highest priority, or idle). A plain value:
// time enters only as `now`, in seconds of a monotonic clock.
#pragma once

#include <array>
#include <optional>

#include "activity/activity_event.h"
#include "activity/activity_kind.h"

namespace tindra {

class ActivityCoordinator {
 public:
  struct Entry {
    std::optional<double> expiresAt;  // none: active until ended

    // Active while `now` is strictly before `expiresAt`.
    bool isActive(double now) const { return !expiresAt || now < *expiresAt; }
    friend bool operator==(const Entry&, const Entry&) = default;
  };

  // Applies the event at `now` and returns the kind to show.
  ActivityKind handle(const ActivityEvent& event, double now);

  // Drops the entries lapsed at `now` and returns the kind to show.
  ActivityKind refresh(double now);

  // The earliest expiry among all stored entries, lapsed ones included; none when no entry has
  // a time.
  std::optional<double> nextExpiry() const;

  std::optional<Entry> entry(ActivityKind kind) const { return entries_[index(kind)]; }
  bool isEmpty() const;

  friend bool operator==(const ActivityCoordinator&, const ActivityCoordinator&) = default;

 private:
  static std::size_t index(ActivityKind kind) { return static_cast<std::size_t>(rawValue(kind)); }
  void prune(double now);
  ActivityKind winner(double now) const;

  std::array<std::optional<Entry>, allCases<ActivityKind>().size()> entries_{};
};

}  // namespace tindra
