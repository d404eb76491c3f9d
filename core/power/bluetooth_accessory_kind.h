// BluetoothAccessoryKind: what a Bluetooth device is, which picks its picture in the notch, and
// the classification that decides it from what the system reports about the device.
#pragma once

#include <optional>
#include <string_view>

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

std::string_view rawValue(BluetoothAccessoryKind kind);
std::optional<BluetoothAccessoryKind> bluetoothAccessoryKindFromRaw(std::string_view raw);

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
