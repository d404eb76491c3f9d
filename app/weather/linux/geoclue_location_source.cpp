#include "weather/linux/geoclue_location_source.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <cmath>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString service = QStringLiteral("org.freedesktop.GeoClue2");
const QString managerPath = QStringLiteral("/org/freedesktop/GeoClue2/Manager");
const QString managerInterface = QStringLiteral("org.freedesktop.GeoClue2.Manager");
const QString clientInterface = QStringLiteral("org.freedesktop.GeoClue2.Client");
const QString locationInterface = QStringLiteral("org.freedesktop.GeoClue2.Location");

QDBusMessage clientPropertySet(const QString& path, const QString& name, const QVariant& value) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(service, path, dbus::properties, QStringLiteral("Set"));
  call << clientInterface << name << QVariant::fromValue(QDBusVariant(value));
  return call;
}

}  // namespace

GeoClueLocationSource::GeoClueLocationSource(QDBusConnection bus, QObject* parent)
    : LocationSource(parent),
      bus_(std::move(bus)),
      watcher_(service, bus_, QDBusServiceWatcher::WatchForRegistration) {
  check_ = {DiagnosticsLog::Outcome::degraded, tr("asking GeoClue for the position")};
  connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this,
          &GeoClueLocationSource::askForClient);
}

GeoClueLocationSource::~GeoClueLocationSource() {
  if (client_.isEmpty()) return;
  bus_.asyncCall(
      QDBusMessage::createMethodCall(service, client_, clientInterface, QStringLiteral("Stop")));
}

void GeoClueLocationSource::start() {
  if (!bus_.isConnected()) {
    setCheck(DiagnosticsLog::Outcome::failed, tr("no system bus: GeoClue cannot be asked"));
    return;
  }
  askForClient();
}

// GeoClue is started by the bus on the first call; a machine without it answers that the name
// is unknown.
void GeoClueLocationSource::askForClient() {
  const QDBusMessage call = QDBusMessage::createMethodCall(service, managerPath, managerInterface,
                                                           QStringLiteral("GetClient"));
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage) {
      setCheck(DiagnosticsLog::Outcome::degraded,
               tr("GeoClue is not available (%1)").arg(answer.errorMessage()));
      return;
    }
    configure(answer.arguments().value(0).value<QDBusObjectPath>().path());
  });
}

// A client must say who it is before it starts; GeoClue's agent decides by that name.
void GeoClueLocationSource::configure(const QString& client) {
  if (!client_.isEmpty()) {
    bus_.disconnect(service, client_, clientInterface, QStringLiteral("LocationUpdated"), this,
                    SLOT(onLocationUpdated(QDBusObjectPath, QDBusObjectPath)));
  }
  client_ = client;
  bus_.connect(service, client_, clientInterface, QStringLiteral("LocationUpdated"), this,
               SLOT(onLocationUpdated(QDBusObjectPath, QDBusObjectPath)));
  bus_.asyncCall(clientPropertySet(client_, QStringLiteral("DesktopId"), QStringLiteral("tindra")));
  bus_.asyncCall(clientPropertySet(client_, QStringLiteral("RequestedAccuracyLevel"),
                                   QVariant::fromValue(cityAccuracy)));
  bus_.asyncCall(clientPropertySet(client_, QStringLiteral("DistanceThreshold"),
                                   QVariant::fromValue(distanceThreshold)));
  startClient();
}

void GeoClueLocationSource::startClient() {
  const QDBusMessage call =
      QDBusMessage::createMethodCall(service, client_, clientInterface, QStringLiteral("Start"));
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage) {
      setCheck(DiagnosticsLog::Outcome::degraded,
               tr("GeoClue refused the position (%1)").arg(answer.errorMessage()));
      return;
    }
    setCheck(DiagnosticsLog::Outcome::ok, tr("GeoClue gives the position, at city accuracy"));
  });
}

void GeoClueLocationSource::onLocationUpdated(const QDBusObjectPath&,
                                              const QDBusObjectPath& current) {
  readLocation(current.path());
}

void GeoClueLocationSource::readLocation(const QString& path) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(service, path, dbus::properties, QStringLiteral("GetAll"));
  call << locationInterface;
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage) return;
    const QVariantMap properties = qdbus_cast<QVariantMap>(answer.arguments().value(0));
    bool latitudeRead = false;
    bool longitudeRead = false;
    const double latitude = properties.value(QStringLiteral("Latitude")).toDouble(&latitudeRead);
    const double longitude = properties.value(QStringLiteral("Longitude")).toDouble(&longitudeRead);
    if (!latitudeRead || !longitudeRead || !std::isfinite(latitude) || !std::isfinite(longitude) ||
        std::abs(latitude) > 90 || std::abs(longitude) > 180) {
      return;
    }
    const GeoCoordinate position{latitude, longitude};
    if (location_ == position) return;
    location_ = position;
    emit locationChanged();
  });
}

void GeoClueLocationSource::setCheck(DiagnosticsLog::Outcome outcome, const QString& text) {
  const ServiceCheck check{outcome, text};
  if (check == check_) return;
  check_ = check;
  emit checkChanged();
}

}  // namespace tindra
