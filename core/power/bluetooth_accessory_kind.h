// BluetoothAccessoryKind: what a Bluetooth device is, which picks its picture in the notch, and
// the classification that decides it from what the system reports about the device.
#pragma once

#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class BluetoothAccessoryKind {
  airPods,
  airPodsGen3,
  airPods4,
  airPods4NoiseCancelling,
  airPodsPro,
  airPodsPro3,
  airPodsMax,
  beats,
  beatsStudio,
  beatsStudioBuds,
  beatsSolo,
  headphones,
  speaker,
  other,
};

template <>
struct EnumTable<BluetoothAccessoryKind> {
  static constexpr std::array cases{
      EnumCase{BluetoothAccessoryKind::airPods, "airPods"},
      EnumCase{BluetoothAccessoryKind::airPodsGen3, "airPodsGen3"},
      EnumCase{BluetoothAccessoryKind::airPods4, "airPods4"},
      EnumCase{BluetoothAccessoryKind::airPods4NoiseCancelling, "airPods4NoiseCancelling"},
      EnumCase{BluetoothAccessoryKind::airPodsPro, "airPodsPro"},
      EnumCase{BluetoothAccessoryKind::airPodsPro3, "airPodsPro3"},
      EnumCase{BluetoothAccessoryKind::airPodsMax, "airPodsMax"},
      EnumCase{BluetoothAccessoryKind::beats, "beats"},
      EnumCase{BluetoothAccessoryKind::beatsStudio, "beatsStudio"},
      EnumCase{BluetoothAccessoryKind::beatsStudioBuds, "beatsStudioBuds"},
      EnumCase{BluetoothAccessoryKind::beatsSolo, "beatsSolo"},
      EnumCase{BluetoothAccessoryKind::headphones, "headphones"},
      EnumCase{BluetoothAccessoryKind::speaker, "speaker"},
      EnumCase{BluetoothAccessoryKind::other, "other"}};
};

// Apple's Bluetooth company identifier.
inline constexpr int appleVendorID = 76;

// The first rule that matches: Apple's product id, then the name, then the minor device type,
// then headphones when `fallbackIsHeadphones` (the device is known to play audio), else other.
BluetoothAccessoryKind classifyBluetoothAccessory(std::optional<std::string_view> name,
                                                  std::optional<std::string_view> minorType,
                                                  std::optional<int> vendorID,
                                                  std::optional<int> productID,
                                                  bool fallbackIsHeadphones);

}  // namespace tindra
