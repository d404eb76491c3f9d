// AccessoryNoticeTracker: which notices the Bluetooth accessories' changes deserve. Fed the
// connected accessories at each change, it compares them with the previous reading:
// - Connected: a device that was not connected is now: one notice, with its picture and battery.
//   The devices already connected at the first reading (when Tindra starts) give none.
// - Disconnected: a device that was connected is gone or no longer connected.
// - Low battery: per device and battery part, while it discharges, once when the level reaches
//   the user's threshold (20 % by default) and once more at 10 % (when the threshold is above
//   that). A level that climbs more than 5 points above a step (charging) arms that step again.
//   A device that connects already at or below a step is not warned again for it: its connect
//   notice shows the level.
// Several notices at one reading come in this order: disconnected, connected, low.
// The `routed` notice (sound moved to an accessory) is AccessoryRouteTracker's.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/enum_table.h"
#include "power/bluetooth_accessory.h"

namespace tindra {

struct AccessoryNotice {
  enum class Kind { connected, disconnected, low, routed };

  Kind kind;
  BluetoothAccessory accessory;
  std::optional<AccessoryBatteryPart> part;  // the low part, for a low notice

  // Seconds on screen.
  double duration() const;

  friend bool operator==(const AccessoryNotice&, const AccessoryNotice&) = default;
};

template <>
struct EnumTable<AccessoryNotice::Kind> {
  using E = AccessoryNotice::Kind;
  static constexpr std::array cases{EnumCase{E::connected, "connected"},
                                    EnumCase{E::disconnected, "disconnected"},
                                    EnumCase{E::low, "low"}, EnumCase{E::routed, "routed"}};
};

class AccessoryNoticeTracker {
 public:
  struct Settings {
    bool connectNotice = true;
    bool disconnectNotice = true;
    bool lowAlert = true;
    int lowThreshold = 20;  // clamped to 5 ... 50
  };
  static constexpr int criticalLevel = 10;
  static constexpr int rearmMargin = 5;

  std::vector<AccessoryNotice> observe(const std::vector<BluetoothAccessory>& connected,
                                       const Settings& settings);

 private:
  // The key one device is known by: its address, else its name.
  static std::string keyOf(const BluetoothAccessory& accessory);

  struct Known {
    BluetoothAccessory accessory;
    std::map<AccessoryBatteryPart, int> warnedStep;  // the lowest step warned, per part
  };
  // True when `level` reached a step below the one warned for `part`; moves the warning there.
  static bool reachesNewStep(Known& known, AccessoryBatteryPart part, int level, int threshold);

  bool started_ = false;
  std::map<std::string, Known> known_;
};

}  // namespace tindra
