#include "power/bluetooth_accessory_kind.h"

#include <array>
#include <string>
#include <utility>

#include "base/ascii_text.h"

namespace tindra {
namespace {

using Kind = BluetoothAccessoryKind;

// Apple's product ids; the only way to tell the newer models apart, whose names say just
// "AirPods".
constexpr std::array<std::pair<int, Kind>, 20> appleProducts{{
    {0x2002, Kind::airPods},
    {0x200F, Kind::airPods},
    {0x2013, Kind::airPodsGen3},
    {0x2019, Kind::airPods4},
    {0x201B, Kind::airPods4NoiseCancelling},
    {0x200E, Kind::airPodsPro},
    {0x2014, Kind::airPodsPro},
    {0x2024, Kind::airPodsPro},
    {0x2027, Kind::airPodsPro3},
    {0x2028, Kind::airPodsPro3},
    {0x200A, Kind::airPodsMax},
    {0x201F, Kind::airPodsMax},
    {0x2007, Kind::beatsStudio},
    {0x2009, Kind::beatsStudio},
    {0x2017, Kind::beatsStudio},
    {0x2011, Kind::beatsStudioBuds},
    {0x2016, Kind::beatsStudioBuds},
    {0x2006, Kind::beatsSolo},
    {0x200C, Kind::beatsSolo},
    {0x2025, Kind::beatsSolo},
}};

std::optional<Kind> kindOfAppleProduct(std::optional<int> vendorID, std::optional<int> productID) {
  if (vendorID != appleVendorID || !productID) return std::nullopt;
  for (const auto& [id, kind] : appleProducts) {
    if (id == *productID) return kind;
  }
  return std::nullopt;
}

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

std::optional<Kind> kindOfName(std::string_view name) {
  const std::string lowered = asciiLowercased(name);
  // Longer names first: "airpods pro" also contains "airpods".
  if (contains(lowered, "airpods max")) return Kind::airPodsMax;
  if (contains(lowered, "airpods pro")) return Kind::airPodsPro;
  if (contains(lowered, "airpods")) return Kind::airPods;
  if (contains(lowered, "beats studio buds")) return Kind::beatsStudioBuds;
  if (contains(lowered, "beats studio")) return Kind::beatsStudio;
  // "Beats Solo Buds" are earbuds, not the Solo headphones; they get the generic picture.
  if (contains(lowered, "beats solo") && !contains(lowered, "buds")) return Kind::beatsSolo;
  if (contains(lowered, "beats")) return Kind::beats;
  return std::nullopt;
}

std::optional<Kind> kindOfMinorType(std::string_view minorType) {
  const std::string lowered = asciiLowercased(minorType);
  for (std::string_view word : {"headphone", "headset", "earbud"}) {
    if (contains(lowered, word)) return Kind::headphones;
  }
  for (std::string_view word : {"speaker", "loudspeaker", "audio"}) {
    if (contains(lowered, word)) return Kind::speaker;
  }
  return std::nullopt;
}

}  // namespace

BluetoothAccessoryKind classifyBluetoothAccessory(std::optional<std::string_view> name,
                                                  std::optional<std::string_view> minorType,
                                                  std::optional<int> vendorID,
                                                  std::optional<int> productID,
                                                  bool fallbackIsHeadphones) {
  if (auto kind = kindOfAppleProduct(vendorID, productID)) return *kind;
  if (auto kind = kindOfName(name.value_or(""))) return *kind;
  if (auto kind = kindOfMinorType(minorType.value_or(""))) return *kind;
  return fallbackIsHeadphones ? Kind::headphones : Kind::other;
}

}  // namespace tindra
