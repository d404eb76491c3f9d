#include "power/bluetooth_address.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

TEST(BluetoothAddress, EveryAcceptedSpellingIsOneAddress) {
  for (std::string_view text : {"AC:90:85:0B:1C:2D", "ac-90-85-0b-1c-2d", "ac90850B1c2d",
                                " AC_90_85_0B_1C_2D\n", "ac.90.85.0b.1c.2d"}) {
    EXPECT_EQ(BluetoothAddress::normalized(text), "ac:90:85:0b:1c:2d") << text;
  }
  for (std::string_view text :
       {"", "ac:90:85:0b:1c", "ac:90:85:0b:1c:2d:3e", "ac:90-85:0b:1c:2d", "ac:90:85:0b:1c:2g",
        "ac 90 85 0b 1c 2d", "ac:90:85:0b:1c:2d:", "a:c90:85:0b:1c:2d", "ac90850b1c2",
        "::::::::::::::::", "ac:90:85:0b:1c:-d"}) {
    EXPECT_EQ(BluetoothAddress::normalized(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tindra
