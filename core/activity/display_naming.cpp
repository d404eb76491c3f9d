#include "activity/display_naming.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace tindra {
namespace {

std::string_view trimmed(std::string_view text) {
  const auto blank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char x, char y) {
    return std::tolower(static_cast<unsigned char>(x)) ==
           std::tolower(static_cast<unsigned char>(y));
  });
}

// Compositors say "Unknown" for a monitor without an EDID, and a bare product code ("0x08E8")
// tells a user nothing the connector does not.
bool isUsableProductName(std::string_view name) {
  if (name.empty() || equalsIgnoringCase(name, "unknown")) return false;
  const bool productCode = name.size() > 2 && equalsIgnoringCase(name.substr(0, 2), "0x") &&
                           std::ranges::all_of(name.substr(2), [](char c) {
                             return std::isxdigit(static_cast<unsigned char>(c)) != 0;
                           });
  return !productCode;
}

// The name before any brackets tell twins apart.
std::string plainName(const DisplayIdentity& display, std::string_view builtInName) {
  if (DisplayNaming::isBuiltInConnector(display.connector)) return std::string(builtInName);
  const std::string_view product = trimmed(display.productName);
  return std::string(isUsableProductName(product) ? product : display.connector);
}

std::string withConnector(const std::string& name, const DisplayIdentity& display) {
  return name + " (" + display.connector + ")";
}

}  // namespace

bool DisplayNaming::isBuiltInConnector(std::string_view connector) {
  return connector.starts_with("eDP") || connector.starts_with("LVDS") ||
         connector.starts_with("DSI");
}

std::vector<std::string> DisplayNaming::names(std::span<const DisplayIdentity> displays,
                                              std::string_view builtInName) {
  std::vector<std::string> names;
  std::map<std::string, int, std::less<>> uses;
  for (const DisplayIdentity& display : displays) {
    names.push_back(plainName(display, builtInName));
    ++uses[names.back()];
  }
  for (std::size_t i = 0; i < names.size(); ++i) {
    // A display whose name is its connector already has nothing to add.
    if (uses[names[i]] > 1 && names[i] != displays[i].connector) {
      names[i] = withConnector(names[i], displays[i]);
    }
  }
  return names;
}

bool DisplayNaming::refersTo(std::string_view stored, const DisplayIdentity& display,
                             std::string_view builtInName) {
  if (stored.empty()) return false;
  const std::string plain = plainName(display, builtInName);
  if (stored == display.connector || stored == plain) return true;
  return plain != display.connector && stored == withConnector(plain, display);
}

}  // namespace tindra
