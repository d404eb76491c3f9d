#include "weather/http_transport.h"

#include "base/ascii_text.h"

namespace tindra {

std::optional<std::string_view> headerValue(const HTTPHeaders& headers, std::string_view name) {
  for (const auto& [key, value] : headers) {
    if (asciiEqualsIgnoringCase(key, name)) return value;
  }
  return std::nullopt;
}

}  // namespace tindra
