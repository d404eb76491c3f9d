#include "power/bluez_device_info.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

namespace tindra {

namespace {

// Four hexadecimal digits after `tag` at the front of `text`, which then moves past them.
std::optional<int> field(std::string_view& text, char tag) {
  if (text.size() < 5 || text.front() != tag) return std::nullopt;
  // Digits only: from_chars would take a minus sign too.
  if (!std::ranges::all_of(text.substr(1, 4), [](char c) {
        return std::isxdigit(static_cast<unsigned char>(c)) != 0;
      })) {
    return std::nullopt;
  }
  int value = 0;
  const char* begin = text.data() + 1;
  const auto [end, error] = std::from_chars(begin, begin + 4, value, 16);
  if (error != std::errc() || end != begin + 4) return std::nullopt;
  text.remove_prefix(5);
  return value;
}

constexpr std::uint32_t audioVideoMajor = 0x04;

// The audio/video minor classes of the Bluetooth assigned numbers, by value.
constexpr std::array<std::pair<std::uint32_t, std::string_view>, 8> audioMinors{{
    {0x01, "Headset"},
    {0x02, "Hands-free"},
    {0x04, "Microphone"},
    {0x05, "Loudspeaker"},
    {0x06, "Headphones"},
    {0x07, "Portable Audio"},
    {0x08, "Car Audio"},
    {0x0A, "HiFi Audio"},
}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> audioIcons{{
    {"audio-headphones", "Headphones"},
    {"audio-headset", "Headset"},
    {"audio-speakers", "Loudspeaker"},
}};

bool isAudioVideo(std::optional<std::uint32_t> deviceClass) {
  return deviceClass && ((*deviceClass >> 8) & 0x1F) == audioVideoMajor;
}

}  // namespace

std::optional<BlueZModalias> BlueZModalias::parse(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::string_view source = text.substr(0, colon);
  if (source != "bluetooth" && source != "usb") return std::nullopt;
  text.remove_prefix(colon + 1);
  const std::optional<int> vendor = field(text, 'v');
  const std::optional<int> product = vendor ? field(text, 'p') : std::nullopt;
  if (!product) return std::nullopt;
  const std::optional<int> version = field(text, 'd');
  if (!text.empty()) return std::nullopt;  // trailing text, or a version that is not one
  return BlueZModalias{*vendor, *product, version.value_or(0)};
}

std::optional<std::string> BlueZDeviceClass::minorType(std::optional<std::uint32_t> deviceClass,
                                                       std::string_view icon) {
  if (isAudioVideo(deviceClass)) {
    const std::uint32_t minor = (*deviceClass >> 2) & 0x3F;
    for (const auto& [value, text] : audioMinors) {
      if (value == minor) return std::string(text);
    }
  }
  for (const auto& [name, text] : audioIcons) {
    if (icon == name) return std::string(text);
  }
  return std::nullopt;
}

bool BlueZDeviceClass::isAudio(std::optional<std::uint32_t> deviceClass, std::string_view icon) {
  return isAudioVideo(deviceClass) || icon.starts_with("audio-");
}

}  // namespace tindra
