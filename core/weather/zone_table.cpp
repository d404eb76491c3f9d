#include "weather/zone_table.h"

#include <algorithm>

#include "base/ascii_text.h"

namespace tindra {

namespace {

// Degrees from "DD[MM[SS]]" with a sign before it, `degreeDigits` wide (2 or 3).
std::optional<double> angle(std::string_view text, std::size_t degreeDigits, double limit) {
  if (text.size() != degreeDigits + 5 && text.size() != degreeDigits + 3) return std::nullopt;
  const double sign = text[0] == '-' ? -1 : text[0] == '+' ? 1 : 0;
  if (sign == 0) return std::nullopt;
  const auto number = [&](std::size_t from, std::size_t width, std::uint32_t max) {
    return unsignedNumber(text.substr(from, width), 10, max);
  };
  const auto degrees = number(1, degreeDigits, static_cast<std::uint32_t>(limit));
  const auto minutes = number(1 + degreeDigits, 2, 59);
  const auto seconds =
      text.size() == degreeDigits + 5 ? number(3 + degreeDigits, 2, 59) : std::optional(0U);
  if (!degrees || !minutes || !seconds) return std::nullopt;
  const double value = *degrees + (*minutes / 60.0) + (*seconds / 3600.0);
  if (value > limit) return std::nullopt;
  return sign * value;
}

}  // namespace

std::optional<GeoCoordinate> ZoneTable::parseCoordinates(std::string_view text) {
  const std::size_t split = text.find_first_of("+-", 1);
  if (split == std::string_view::npos) return std::nullopt;
  const auto latitude = angle(text.substr(0, split), 2, 90);
  const auto longitude = angle(text.substr(split), 3, 180);
  if (!latitude || !longitude) return std::nullopt;
  return GeoCoordinate{*latitude, *longitude};
}

ZoneTable ZoneTable::parse(std::string_view text) {
  ZoneTable table;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line.starts_with('#')) continue;
    // country codes, coordinates, zone name and optional comments, tab-separated
    std::string_view fields[3];
    std::size_t count = 0;
    for (std::size_t start = 0; count < 3 && start <= line.size(); ++count) {
      const std::size_t tab = std::min(line.find('\t', start), line.size());
      fields[count] = line.substr(start, tab - start);
      start = tab + 1;
    }
    if (count < 3 || fields[2].empty()) continue;
    const auto city = parseCoordinates(fields[1]);
    if (!city) continue;
    table.zones_.push_back({std::string(fields[2]), *city});
  }
  return table;
}

std::optional<GeoCoordinate> ZoneTable::city(std::string_view zone) const {
  const auto found = std::ranges::find(zones_, zone, &Zone::name);
  return found == zones_.end() ? std::nullopt : std::optional(found->city);
}

}  // namespace tindra
