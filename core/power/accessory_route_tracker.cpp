#include "power/accessory_route_tracker.h"

#include <algorithm>

namespace tindra {

void AccessoryRouteTracker::connectNoticeShown(const std::string& address, double now) {
  std::erase_if(connectNoticeAt_,
                [now](const auto& entry) { return now - entry.second >= connectCoverSeconds; });
  connectNoticeAt_[address] = now;
}

void AccessoryRouteTracker::outputLost() {
  started_ = false;
  undecided_ = false;
}

bool AccessoryRouteTracker::coveredByConnectNotice(const std::string& address, double now) const {
  const auto shown = connectNoticeAt_.find(address);
  return shown != connectNoticeAt_.end() && now - shown->second < connectCoverSeconds;
}

std::optional<BluetoothAccessory> AccessoryRouteTracker::observe(
    const std::optional<std::string>& outputAddress,
    const std::vector<BluetoothAccessory>& connected, double now) {
  if (!started_ || outputAddress != output_) {
    undecided_ = started_ && outputAddress.has_value();
    started_ = true;
    output_ = outputAddress;
  }
  if (!undecided_) return std::nullopt;
  const auto accessory = std::ranges::find(connected, output_, &BluetoothAccessory::address);
  if (accessory == connected.end()) return std::nullopt;
  undecided_ = false;
  if (coveredByConnectNotice(*output_, now)) return std::nullopt;
  return *accessory;
}

}  // namespace tindra
