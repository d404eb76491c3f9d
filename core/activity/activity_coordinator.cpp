#include "activity/activity_coordinator.h"

#include <algorithm>
#include <cmath>

namespace tindra {

ActivityKind ActivityCoordinator::handle(const ActivityEvent& event, double now) {
  prune(now);
  const ActivityKind kind = event.kind();
  std::optional<Entry>& slot = entries_[index(kind)];
  if (event.eventCase() == ActivityEvent::Case::ended) {
    slot.reset();
  } else if (kind != ActivityKind::idle) {
    const std::optional<double> duration = event.duration();
    if (duration && std::isfinite(*duration)) {
      // A non-positive duration acts as ended; a positive one restarts (or shortens) the time.
      if (*duration > 0) {
        slot = Entry{now + *duration};
      } else {
        slot.reset();
      }
    } else {
      slot = Entry{std::nullopt};
    }
  }
  return winner(now);
}

ActivityKind ActivityCoordinator::refresh(double now) {
  prune(now);
  return winner(now);
}

std::optional<double> ActivityCoordinator::nextExpiry() const {
  std::optional<double> earliest;
  for (const std::optional<Entry>& entry : entries_) {
    if (entry && entry->expiresAt && (!earliest || *entry->expiresAt < *earliest)) {
      earliest = entry->expiresAt;
    }
  }
  return earliest;
}

bool ActivityCoordinator::isEmpty() const {
  return std::none_of(entries_.begin(), entries_.end(),
                      [](const std::optional<Entry>& entry) { return entry.has_value(); });
}

void ActivityCoordinator::prune(double now) {
  for (std::optional<Entry>& entry : entries_) {
    if (entry && !entry->isActive(now)) entry.reset();
  }
}

ActivityKind ActivityCoordinator::winner(double now) const {
  constexpr auto kinds = allCases<ActivityKind>();
  for (auto kind = kinds.rbegin(); kind != kinds.rend(); ++kind) {
    const std::optional<Entry>& entry = entries_[index(*kind)];
    if (entry && entry->isActive(now)) return *kind;
  }
  return ActivityKind::idle;
}

}  // namespace tindra
