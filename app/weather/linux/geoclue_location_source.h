// GeoClueLocationSource: the position from GeoClue 2 on the system bus, at city accuracy (all the
// weather needs). Asks for a client, names itself ("tindra", the desktop entry) and starts it;
// GeoClue then reports each new position with LocationUpdated, no polling. A refusal (the user's
// agent denies the program) or a missing GeoClue is said in the check, and the last position, if
// any, stays; GeoClue coming back on the bus is followed with a new client.
#pragma once

#include <QDBusConnection>

#include "base/dbus/dbus_service_follower.h"
#include "weather/location_source.h"

namespace tindra {

class GeoClueLocationSource final : public LocationSource {
  Q_OBJECT

 public:
  static constexpr unsigned cityAccuracy = 4;          // GClueAccuracyLevel
  static constexpr unsigned distanceThreshold = 1000;  // metres; nearer moves are not reported

  explicit GeoClueLocationSource(QDBusConnection bus, QObject* parent = nullptr);
  ~GeoClueLocationSource() override;

  void start() override;

 private:
  void askForClient();
  void notAvailable(const QString& why);
  void configure(const QString& client);
  void startClient();
  void readLocation(const QString& path);

  QDBusConnection bus_;
  DBusServiceFollower geoclue_;
  QString client_;
};

}  // namespace tindra
