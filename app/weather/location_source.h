// LocationSource: where the machine is, roughly, for the weather, reported as it changes. The
// weather rounds the position to about a kilometre before it leaves the machine.
// LocationSource::Null is the do-nothing source of a session without a location service; the
// weather then uses the place the user set or the time zone's city.
#pragma once

#include <memory>
#include <optional>

#include "base/backend.h"
#include "base/shared_backends.h"
#include "weather/geo_coordinate.h"

namespace tindra {

class LocationSource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<LocationSource>;

  // This platform's location service, or the do-nothing source where there can be none (made
  // in the platform's folder).
  static std::unique_ptr<LocationSource> forPlatform(SharedBackends& shared);

  // The latest position; none until one is known.
  const std::optional<GeoCoordinate>& location() const { return location_; }

 signals:
  void locationChanged();

 protected:
  void publish(const std::optional<GeoCoordinate>& location) {
    if (assignIfChanged(location_, location)) emit locationChanged();
  }

 private:
  std::optional<GeoCoordinate> location_;
};

}  // namespace tindra
