#include "power/bluez_device_info.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(BlueZModaliasTest, VendorAndProductFromBothSourcesAndNothingFromNonsense) {
  EXPECT_EQ(BlueZModalias::parse("bluetooth:v004Cp200Ed0100"), (BlueZModalias{76, 0x200E, 0x100}));
  EXPECT_EQ(BlueZModalias::parse("usb:v05ACp0265d0100"), (BlueZModalias{0x05AC, 0x0265, 0x100}));
  EXPECT_EQ(BlueZModalias::parse("bluetooth:v004Cp2027"), (BlueZModalias{76, 0x2027, 0}));
  for (const char* bad :
       {"", "bluetooth:", "bluetooth:v004C", "bluetooth:v04Cp200E", "bluetooth:v004Cp200Ed01",
        "pci:v004Cp200Ed0100", "bluetooth:v004Cp200Ed0100x", "bluetooth:vZZZZp200E", "v004Cp200E",
        "bluetooth:v-04Cp200Ed-100"}) {
    EXPECT_FALSE(BlueZModalias::parse(bad)) << bad;
  }
}

TEST(BlueZDeviceClassTest, AudioMinorTypesFromTheClassThenTheIcon) {
  EXPECT_EQ(BlueZDeviceClass::minorType(0x240418, ""), "Headphones");  // a typical headset class
  EXPECT_EQ(BlueZDeviceClass::minorType(0x240404, ""), "Headset");
  EXPECT_EQ(BlueZDeviceClass::minorType(0x240414, ""), "Loudspeaker");
  EXPECT_EQ(BlueZDeviceClass::minorType(0x5A020C, "phone"), std::nullopt);  // a phone
  EXPECT_EQ(BlueZDeviceClass::minorType(std::nullopt, "audio-headphones"), "Headphones");
  EXPECT_TRUE(BlueZDeviceClass::isAudio(std::nullopt, "audio-card"));
  EXPECT_TRUE(BlueZDeviceClass::isAudio(0x240418, ""));
  EXPECT_FALSE(BlueZDeviceClass::isAudio(0x2540, "input-keyboard"));
}

}  // namespace
}  // namespace tindra
