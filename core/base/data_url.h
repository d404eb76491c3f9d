// The bytes of a data: address (RFC 2397), "data:[<type>][;base64],<data>", as players give
// covers inline. Percent escapes are decoded first; the Base64 form must then be strict Base64.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tindra {

// None for anything that is not a well-formed data: address, and for bytes over `maxBytes`.
std::optional<std::string> decodeDataURL(std::string_view url, std::size_t maxBytes);

}  // namespace tindra
