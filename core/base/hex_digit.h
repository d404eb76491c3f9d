// Hexadecimal digits, for the tray's stored bookmarks, quarantine times and data: addresses.
#pragma once

namespace tindra {

// The value of `c` as a hexadecimal digit of either case, or -1.
constexpr int hexDigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace tindra
