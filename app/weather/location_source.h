// LocationSource: where the machine is, roughly, for the weather. A source reports each new
// position when it arrives and says whether its service answers; the weather rounds the
// position to about a kilometre before it leaves the machine.
#pragma once

#include <QObject>
#include <optional>

#include "base/service_check.h"
#include "weather/geo_coordinate.h"

namespace tindra {

class LocationSource : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // Begins following the position. Positions may arrive before or after this returns.
  virtual void start() = 0;
  // The latest position; none until one is known.
  virtual std::optional<GeoCoordinate> location() const = 0;
  virtual ServiceCheck check() const = 0;

 signals:
  void locationChanged();
  void checkChanged();
};

}  // namespace tindra
