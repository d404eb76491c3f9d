// AudioTransport: how the default output device is attached, from its four-character transport
// code. Decides whether the volume keys belong to another program (VolumeYieldPolicy).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/enum_table.h"

namespace tindra {

enum class AudioTransport { builtIn, usb, bluetooth, hdmi, displayPort, airPlay, other };

template <>
struct EnumTable<AudioTransport> {
  static constexpr std::array cases{EnumCase{AudioTransport::builtIn, "builtIn"},
                                    EnumCase{AudioTransport::usb, "usb"},
                                    EnumCase{AudioTransport::bluetooth, "bluetooth"},
                                    EnumCase{AudioTransport::hdmi, "hdmi"},
                                    EnumCase{AudioTransport::displayPort, "displayPort"},
                                    EnumCase{AudioTransport::airPlay, "airPlay"},
                                    EnumCase{AudioTransport::other, "other"}};
};

// A four-character code packed big-endian, first character in the top byte ("usb " included).
constexpr std::uint32_t fourCharCode(std::string_view code) {
  std::uint32_t packed = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const auto byte = i < code.size() ? static_cast<unsigned char>(code[i]) : 0U;
    packed = (packed << 8) | byte;
  }
  return packed;
}

// The transport for a device's transport code; `other` for unknown codes and failed reads (none).
AudioTransport audioTransportFromCode(std::optional<std::uint32_t> code);

}  // namespace tindra
