// DeparturePlan: when to leave for an event and the travel time that date was computed from
// (seconds since 1970 and seconds).
#pragma once

namespace tindra {

struct DeparturePlan {
  double leaveAt;
  double travelTime;
  friend bool operator==(const DeparturePlan&, const DeparturePlan&) = default;
};

}  // namespace tindra
