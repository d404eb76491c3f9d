// ActivityKind: what the closed notch can show. The raw value is the priority: a larger one wins.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tindra {

enum class ActivityKind : int {
  idle = 0,
  nowPlaying = 1,
  upcomingEvent = 2,
  focus = 3,
  airDrop = 4,
  message = 5,
  accessory = 6,
  batteryAlert = 7,
  hud = 8,
  incomingCall = 9,
};

inline constexpr std::array<ActivityKind, 10> allActivityKinds{
    ActivityKind::idle,        ActivityKind::nowPlaying,   ActivityKind::upcomingEvent,
    ActivityKind::focus,       ActivityKind::airDrop,      ActivityKind::message,
    ActivityKind::accessory,   ActivityKind::batteryAlert, ActivityKind::hud,
    ActivityKind::incomingCall};

constexpr int rawValue(ActivityKind kind) {
  return static_cast<int>(kind);
}

// No value outside 0...9.
constexpr std::optional<ActivityKind> activityKindFromRaw(int raw) {
  if (raw < 0 || raw > 9) return std::nullopt;
  return static_cast<ActivityKind>(raw);
}

// The notice kinds (focus ... batteryAlert) are the ones whose durations follow the
// user's notice-length setting.
constexpr bool isNotice(ActivityKind kind) {
  return rawValue(kind) >= 3 && rawValue(kind) <= 7;
}

// The case name, for logs and the views ("nowPlaying").
std::string_view name(ActivityKind kind);

}  // namespace tindra
