// BlueZDeviceInfo: what BlueZ's Device1 properties say about a device beyond its name: the vendor
// and product ids in its modalias ("bluetooth:v004Cp200Ed0100", or "usb:v05ACp0265d0100"), and
// its minor device type from the class of device (audio/video major class) or, failing that,
// its icon name ("audio-headphones"). Everything comes from another process; anything that does
// not have the expected form gives none.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tindra {

struct BlueZModalias {
  int vendorID = 0;
  int productID = 0;
  int version = 0;

  // None unless `text` is "<source>:vXXXXpXXXXdXXXX" with four hexadecimal digits each (the
  // version part may be missing) and the source "bluetooth" or "usb".
  static std::optional<BlueZModalias> parse(std::string_view text);

  friend bool operator==(const BlueZModalias&, const BlueZModalias&) = default;
};

struct BlueZDeviceClass {
  // The minor device type as a person says it ("Headphones", "Loudspeaker"), for devices of the
  // audio/video major class, else from the icon name; none for anything else.
  static std::optional<std::string> minorType(std::optional<std::uint32_t> deviceClass,
                                              std::string_view icon);
  // Whether the device plays sound (audio/video class, or an "audio-" icon).
  static bool isAudio(std::optional<std::uint32_t> deviceClass, std::string_view icon);
};

}  // namespace tindra
