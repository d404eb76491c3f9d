// The weather's position on Linux: GeoClue on the system bus.
#include "base/linux/system_bus.h"
#include "weather/linux/geoclue_location_source.h"

namespace tindra {

std::unique_ptr<LocationSource> LocationSource::forPlatform(SharedBackends&) {
  return onSystemBus<LocationSource::Null>(
      Sentence::in("Backends",
                   QT_TRANSLATE_NOOP("Backends", "no system bus (%1): GeoClue cannot be asked")),
      [](const QDBusConnection& bus) { return std::make_unique<GeoClueLocationSource>(bus); });
}

}  // namespace tindra
