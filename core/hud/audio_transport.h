// AudioTransport: how the default output device is attached, from its four-character transport
// code. Decides whether the volume keys belong to another program (VolumeYieldPolicy).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tindra {

enum class AudioTransport { builtIn, usb, bluetooth, hdmi, displayPort, airPlay, other };

inline constexpr std::array<AudioTransport, 7> allAudioTransports{
    AudioTransport::builtIn, AudioTransport::usb,         AudioTransport::bluetooth,
    AudioTransport::hdmi,    AudioTransport::displayPort, AudioTransport::airPlay,
    AudioTransport::other};

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
