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
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("asking GeoClue for the position"), tr));
  connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this,
          &GeoClueLocationSource::askForClient);
}

GeoClueLocationSource::~GeoClueLocationSource() {
  if (client_.isEmpty()) return;
  bus_.asyncCall(
      QDBusMessage::createMethodCall(service, client_, clientInterface, QStringLiteral("Stop")));
}

void GeoClueLocationSource::start() {
  askForClient();
}

// GeoClue is started by the bus on the first call; a machine without it answers that the name
// is unknown.
void GeoClueLocationSource::askForClient() {
  const QDBusMessage call = QDBusMessage::createMethodCall(service, managerPath, managerInterface,
                                                           QStringLiteral("GetClient"));
  whenAnswered(bus_.asyncCall(call), this, [this](const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage) {
      setCheck(
          DiagnosticsLog::Outcome::degraded,
          Sentence(QT_TR_NOOP("GeoClue is not available (%1)"), tr).arg(answer.errorMessage()));
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
      setCheck(
          DiagnosticsLog::Outcome::degraded,
          Sentence(QT_TR_NOOP("GeoClue refused the position (%1)"), tr).arg(answer.errorMessage()));
      return;
    }
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("GeoClue gives the position, at city accuracy"), tr));
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
    publish(GeoCoordinate{latitude, longitude});
  });
}

}  // namespace tindra
