// ActivityKind: what the closed notch can show. The raw value is the priority: a larger one wins.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

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

// The raw value is the priority.
template <>
struct EnumTable<ActivityKind> {
  static constexpr std::array cases{EnumCase{ActivityKind::idle, 0, "idle"},
                                    EnumCase{ActivityKind::nowPlaying, 1, "nowPlaying"},
                                    EnumCase{ActivityKind::upcomingEvent, 2, "upcomingEvent"},
                                    EnumCase{ActivityKind::focus, 3, "focus"},
                                    EnumCase{ActivityKind::airDrop, 4, "airDrop"},
                                    EnumCase{ActivityKind::message, 5, "message"},
                                    EnumCase{ActivityKind::accessory, 6, "accessory"},
                                    EnumCase{ActivityKind::batteryAlert, 7, "batteryAlert"},
                                    EnumCase{ActivityKind::hud, 8, "hud"},
                                    EnumCase{ActivityKind::incomingCall, 9, "incomingCall"}};
};

// The notice kinds (focus ... batteryAlert) are the ones whose durations follow the
// user's notice-length setting.
constexpr bool isNotice(ActivityKind kind) {
  return rawValue(kind) >= 3 && rawValue(kind) <= 7;
}

}  // namespace tindra
