#include "power/accessory_notice_tracker.h"

#include <algorithm>

#include "base/enum_table.h"
#include "power/battery_threshold.h"

namespace tindra {

double AccessoryNotice::duration() const {
  switch (kind) {
    case Kind::connected:
      return 4;
    case Kind::disconnected:
    case Kind::routed:
      return 3;
    case Kind::low:
      return 6;
  }
  return 4;
}

std::string AccessoryNoticeTracker::keyOf(const BluetoothAccessory& accessory) {
  return accessory.address.value_or("name:" + accessory.name);
}

bool AccessoryNoticeTracker::reachesNewStep(Known& known, AccessoryBatteryPart part, int level,
                                            int threshold) {
  const auto warned = known.warnedStep.find(part);
  if (warned != known.warnedStep.end()) {
    // Charging arms the steps it climbs well above again.
    if (level > threshold + rearmMargin) {
      known.warnedStep.erase(warned);
    } else if (warned->second < threshold && level > warned->second + rearmMargin) {
      warned->second = threshold;
    }
  }
  const int step = level <= criticalLevel && threshold > criticalLevel ? criticalLevel
                   : level <= threshold                                ? threshold
                                                                       : -1;
  if (step < 0) return false;
  const auto now = known.warnedStep.find(part);
  if (now != known.warnedStep.end() && now->second <= step) return false;
  known.warnedStep[part] = step;
  return true;
}

std::vector<AccessoryNotice> AccessoryNoticeTracker::observe(
    const std::vector<BluetoothAccessory>& connected, const Settings& settings) {
  const int threshold = BatteryThreshold::clamped(settings.lowThreshold);
  std::vector<AccessoryNotice> gone, arrived, low;
  std::map<std::string, Known> next;
  for (const BluetoothAccessory& accessory : connected) {
    const std::string key = keyOf(accessory);
    if (next.contains(key)) continue;  // the same device reported twice
    const auto before = known_.find(key);
    const bool isNew = before == known_.end();
    Known known = isNew ? Known{accessory, {}} : std::move(before->second);
    known.accessory = accessory;
    for (const AccessoryBatteryPart part : allCases<AccessoryBatteryPart>()) {
      const std::optional<int> level = accessory.battery.level(part);
      if (!level) continue;
      const bool newStep = reachesNewStep(known, part, *level, threshold);
      // A device that just connected shows its level in the connect notice.
      if (newStep && !isNew && settings.lowAlert) {
        low.push_back({AccessoryNotice::Kind::low, accessory, part});
      }
    }
    if (isNew && started_ && settings.connectNotice) {
      arrived.push_back({AccessoryNotice::Kind::connected, accessory, std::nullopt});
    }
    next.emplace(key, std::move(known));
  }
  for (auto& [key, known] : known_) {
    if (!next.contains(key) && settings.disconnectNotice) {
      gone.push_back({AccessoryNotice::Kind::disconnected, known.accessory, std::nullopt});
    }
  }
  known_ = std::move(next);
  started_ = true;
  std::vector<AccessoryNotice> notices = std::move(gone);
  notices.insert(notices.end(), arrived.begin(), arrived.end());
  notices.insert(notices.end(), low.begin(), low.end());
  return notices;
}

}  // namespace tindra
