// Arbitrary text as a BlueZ modalias, and arbitrary classes and icons: parsing never reads out of
// bounds, ids stay within their 16 bits, and a minor type is never empty.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "power/bluez_device_info.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (const auto modalias = tindra::BlueZModalias::parse(text)) {
    if (modalias->vendorID < 0 || modalias->vendorID > 0xFFFF || modalias->productID < 0 ||
        modalias->productID > 0xFFFF) {
      std::abort();
    }
  }
  std::uint32_t deviceClass = 0;
  if (size >= 4) std::memcpy(&deviceClass, data, 4);
  const auto minor = tindra::BlueZDeviceClass::minorType(deviceClass, text);
  if (minor && minor->empty()) std::abort();
  (void)tindra::BlueZDeviceClass::isAudio(deviceClass, text);
  return 0;
}
