// AccessoryRouteTracker: whether a change of the default audio output deserves the `routed`
// notice, "sound now plays on this accessory". Fed the output's Bluetooth address and the
// connected accessories whenever either changes, it names the accessory the sound moved to:
// - Only a move counts: the first output known (Tindra starting, the sound server returning) and
//   the same output reported again give none, and neither does a move to any other output.
// - The output is matched to a connected accessory by address. The sound server and Bluetooth
//   report a new headset in either order, so a move waits for its accessory to connect.
// - A move to an accessory whose connect notice went up less than `connectCoverSeconds` before
//   gives none: connecting is what moved the sound (the sound server switches to a new headset
//   by itself), and the connect notice on screen already names the device. Without a connect
//   notice (switched off, or the device was there before Tindra) the move has its own.
// Times are monotonic seconds.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "power/bluetooth_accessory.h"

namespace tindra {

class AccessoryRouteTracker {
 public:
  // Longer than the connect notice itself: the headset's audio profile can take a few seconds
  // to come up after the connection.
  static constexpr double connectCoverSeconds = 10;

  // The connect notice of the accessory with this (canonical) address went up at `now`.
  void connectNoticeShown(const std::string& address, double now);
  // The output is unknown (no sound server); the next one known is no move.
  void outputLost();
  // The accessory the sound just moved to, when the move deserves the notice. `outputAddress` is
  // the default output's canonical Bluetooth address, none for an output that is no Bluetooth
  // device.
  std::optional<BluetoothAccessory> observe(const std::optional<std::string>& outputAddress,
                                            const std::vector<BluetoothAccessory>& connected,
                                            double now);

 private:
  bool coveredByConnectNotice(const std::string& address, double now) const;

  bool started_ = false;
  std::optional<std::string> output_;
  bool undecided_ = false;  // output_ is a move not yet announced or passed over
  std::map<std::string, double> connectNoticeAt_;
};

}  // namespace tindra
