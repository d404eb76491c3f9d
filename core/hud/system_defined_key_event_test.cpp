#include "hud/system_defined_key_event.h"

#include <gtest/gtest.h>

#include "hud/audio_transport.h"
#include "hud/function_key_event.h"
#include "hud/key_modifiers.h"

namespace tindra {
namespace {

using Key = SystemDefinedKeyEvent::Key;

std::int64_t data1(int keyCode, int state, int flags = 0) {
  return (static_cast<std::int64_t>(keyCode) << 16) | (state << 8) | flags;
}

TEST(SystemDefinedKeyEvent, DecodesKeyDownUpAndRepeat) {
  EXPECT_EQ(SystemDefinedKeyEvent::decode(8, data1(0, 0x0A, 1)),
            (SystemDefinedKeyEvent{0, true, true}));
  EXPECT_EQ(SystemDefinedKeyEvent::decode(8, data1(7, 0x0B)),
            (SystemDefinedKeyEvent{7, false, false}));
  // Flag bits other than bit 0 do not make a repeat.
  EXPECT_EQ(SystemDefinedKeyEvent::decode(8, data1(21, 0x0A, 0xFE)),
            (SystemDefinedKeyEvent{21, true, false}));
  // The whole upper half of the low word is the code; higher bits are ignored.
  EXPECT_EQ(SystemDefinedKeyEvent::decode(8, data1(0xFFFF, 0x0A) | (std::int64_t{1} << 40)),
            (SystemDefinedKeyEvent{0xFFFF, true, false}));
  EXPECT_EQ(SystemDefinedKeyEvent::decode(8, -1), std::nullopt);  // state 0xFF
}

TEST(SystemDefinedKeyEvent, RejectsOtherSubtypesAndStates) {
  EXPECT_EQ(SystemDefinedKeyEvent::decode(7, data1(0, 0x0A)), std::nullopt);
  EXPECT_EQ(SystemDefinedKeyEvent::decode(9, data1(0, 0x0A)), std::nullopt);
  for (int state : {0x00, 0x09, 0x0C, 0x1A}) {
    EXPECT_EQ(SystemDefinedKeyEvent::decode(8, data1(0, state)), std::nullopt) << state;
  }
}

TEST(SystemDefinedKeyEvent, KnownKeysOnly) {
  for (int unknown : {-1, 4, 5, 6, 8, 15, 23, 0x10000}) {
    EXPECT_EQ(enumFromRaw<SystemDefinedKeyEvent::Key>(unknown), std::nullopt) << unknown;
  }
  EXPECT_EQ((SystemDefinedKeyEvent{22, true, false}).key(), Key::illuminationDown);
  EXPECT_EQ((SystemDefinedKeyEvent{12, true, false}).key(), std::nullopt);
}

TEST(FunctionKeyEvent, OnlyF14AndF15) {
  EXPECT_EQ(FunctionKeyEvent::make(107, true, false), (FunctionKeyEvent{false, true, false}));
  EXPECT_EQ(FunctionKeyEvent::make(113, false, true), (FunctionKeyEvent{true, false, true}));
  EXPECT_EQ(FunctionKeyEvent::make(106, true, false), std::nullopt);
  EXPECT_EQ(FunctionKeyEvent::make(145, true, false), std::nullopt);
}

TEST(KeyModifiers, FromEventFlagsIgnoresOtherFlags) {
  EXPECT_EQ(KeyModifiers::fromEventFlags(0x1E0000).rawValue(), 15);
  // Caps lock (0x10000), the numeric pad (0x200000) and the function key (0x800000) are not
  // modifiers here.
  EXPECT_TRUE(KeyModifiers::fromEventFlags(0x10000 | 0x200000 | 0x800000 | 0xFFFF).isEmpty());
  const auto optionShift = KeyModifiers::fromEventFlags(0xA0000 | 0x800000);
  EXPECT_EQ(optionShift, KeyModifiers::option() | KeyModifiers::shift());
  EXPECT_FALSE(optionShift.contains(KeyModifiers::shift() | KeyModifiers::command()));
}

TEST(AudioTransport, FromFourCharacterCodes) {
  EXPECT_EQ(audioTransportFromCode(fourCharCode("usb ")), AudioTransport::usb);
  EXPECT_EQ(audioTransportFromCode(fourCharCode("usb")), AudioTransport::other);  // no space
  EXPECT_EQ(audioTransportFromCode(fourCharCode("blea")), AudioTransport::bluetooth);
  EXPECT_EQ(audioTransportFromCode(0x64'70'72'74), AudioTransport::displayPort);  // "dprt"
  EXPECT_EQ(audioTransportFromCode(fourCharCode("HDMI")), AudioTransport::other);
  EXPECT_EQ(audioTransportFromCode(std::nullopt), AudioTransport::other);
}

}  // namespace
}  // namespace tindra
