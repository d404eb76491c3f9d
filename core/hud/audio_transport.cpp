#include "hud/audio_transport.h"

namespace tindra {

AudioTransport audioTransportFromCode(std::optional<std::uint32_t> code) {
  if (!code) return AudioTransport::other;
  switch (*code) {
    case fourCharCode("bltn"):
      return AudioTransport::builtIn;
    case fourCharCode("usb "):
      return AudioTransport::usb;
    case fourCharCode("blue"):
    case fourCharCode("blea"):
      return AudioTransport::bluetooth;
    case fourCharCode("hdmi"):
      return AudioTransport::hdmi;
    case fourCharCode("dprt"):
      return AudioTransport::displayPort;
    case fourCharCode("airp"):
      return AudioTransport::airPlay;
    default:
      return AudioTransport::other;
  }
}

}  // namespace tindra
