#include "power/bluetooth_accessory_kind.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Kind = BluetoothAccessoryKind;

Kind byName(std::string_view name) {
  return classifyBluetoothAccessory(name, std::nullopt, std::nullopt, std::nullopt, false);
}

Kind byMinorType(std::string_view minorType, bool fallback = false) {
  return classifyBluetoothAccessory("Desk", minorType, std::nullopt, std::nullopt, fallback);
}

TEST(BluetoothAccessoryKind, AppleProductIDBeatsEverythingElse) {
  EXPECT_EQ(classifyBluetoothAccessory("Beats Solo", "Speaker", 76, 0x2027, false),
            Kind::airPodsPro3);
  EXPECT_EQ(classifyBluetoothAccessory("AirPods", std::nullopt, 76, 0x201B, false),
            Kind::airPods4NoiseCancelling);
  EXPECT_EQ(classifyBluetoothAccessory(std::nullopt, std::nullopt, 76, 0x2025, false),
            Kind::beatsSolo);
  // An unknown product, another vendor or a missing vendor leaves it to the name.
  EXPECT_EQ(classifyBluetoothAccessory("Anna's aIRpODS", std::nullopt, 76, 0x2099, false),
            Kind::airPods);
  EXPECT_EQ(classifyBluetoothAccessory("AirPods Pro", std::nullopt, 77, 0x2027, false),
            Kind::airPodsPro);
  EXPECT_EQ(classifyBluetoothAccessory("AirPods Max", std::nullopt, std::nullopt, 0x2027, false),
            Kind::airPodsMax);
  EXPECT_EQ(classifyBluetoothAccessory(std::nullopt, std::nullopt, 76, std::nullopt, true),
            Kind::headphones);
}

TEST(BluetoothAccessoryKind, NameRulesInOrder) {
  EXPECT_EQ(byName("My AirPods Max"), Kind::airPodsMax);
  EXPECT_EQ(byName("AIRPODS PRO"), Kind::airPodsPro);
  EXPECT_EQ(byName("AirPods"), Kind::airPods);
  EXPECT_EQ(byName("Beats Studio Buds+"), Kind::beatsStudioBuds);
  EXPECT_EQ(byName("Beats Studio Pro"), Kind::beatsStudio);
  EXPECT_EQ(byName("Beats Solo3"), Kind::beatsSolo);
  // Solo Buds are not the Solo headphones; "buds" anywhere in the name decides.
  EXPECT_EQ(byName("Beats Solo Buds"), Kind::beats);
  EXPECT_EQ(byName("Earbuds by Beats Solo"), Kind::beats);
  EXPECT_EQ(byName("Powerbeats Pro"), Kind::beats);
  EXPECT_EQ(byName("AirPod"), Kind::other);
}

TEST(BluetoothAccessoryKind, MinorTypeThenFallback) {
  EXPECT_EQ(byMinorType("Headphones"), Kind::headphones);
  EXPECT_EQ(byMinorType("HEADSET"), Kind::headphones);
  EXPECT_EQ(byMinorType("Earbuds"), Kind::headphones);
  EXPECT_EQ(byMinorType("Loudspeaker"), Kind::speaker);
  EXPECT_EQ(byMinorType("Portable Audio"), Kind::speaker);
  // Headphone words are tested before speaker words.
  EXPECT_EQ(byMinorType("Headphone audio"), Kind::headphones);
  EXPECT_EQ(byMinorType("Keyboard"), Kind::other);
  EXPECT_EQ(byMinorType("Keyboard", true), Kind::headphones);
  EXPECT_EQ(classifyBluetoothAccessory("Desk", std::nullopt, 1, 2, true), Kind::headphones);
}

TEST(BluetoothAccessoryKind, RawValuesRoundTrip) {
  for (Kind kind : {Kind::airPods, Kind::airPods4NoiseCancelling, Kind::beatsSolo, Kind::other}) {
    EXPECT_EQ(enumFromRaw<BluetoothAccessoryKind>(rawValue(kind)), kind);
  }
  EXPECT_EQ(rawValue(Kind::airPodsGen3), "airPodsGen3");
  EXPECT_EQ(enumFromRaw<BluetoothAccessoryKind>("AirPods"), std::nullopt);
}

}  // namespace
}  // namespace tindra
