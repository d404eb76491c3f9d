// ZoneTable: tzdata's tables of time zones with the position of each zone's principal city
// (zone1970.tab, and the older zone.tab that still lists every country's own zone). Gives the
// weather a position on first run, before any location service answers, from the zone the
// system is set to: rough (a city can be hundreds of kilometres away) but never nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "weather/geo_coordinate.h"

namespace tindra {

class ZoneTable {
 public:
  struct Zone {
    std::string name;  // "Europe/Oslo"
    GeoCoordinate city;
    friend bool operator==(const Zone&, const Zone&) = default;
  };

  // The zones of one table's text. Comment lines and lines that do not read (a wrong number of
  // fields, a malformed position) are skipped.
  static ZoneTable parse(std::string_view text);
  // "+5955+01045" or "+404251-0740023": ISO 6709 degrees and minutes, seconds optional.
  static std::optional<GeoCoordinate> parseCoordinates(std::string_view text);

  std::optional<GeoCoordinate> city(std::string_view zone) const;
  const std::vector<Zone>& zones() const { return zones_; }

 private:
  std::vector<Zone> zones_;
};

}  // namespace tindra
