#include "weather/linux/geoclue_location_source.h"

#include <QDBusObjectPath>
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
const QString locationUpdated = QStringLiteral("LocationUpdated");

QDBusMessage clientPropertySet(const QString& path, const QString& name, const QVariant& value) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(service, path, dbus::properties, QStringLiteral("Set"));
  call << clientInterface << name << QVariant::fromValue(QDBusVariant(value));
  return call;
}

}  // namespace

// GeoClue is started by the bus when it is asked for; a machine without it says that the name
// is unknown.
GeoClueLocationSource::GeoClueLocationSource(QDBusConnection bus, QObject* parent)
    : LocationSource(parent),
      bus_(bus),
      geoclue_(std::move(bus), service, {}, DBusServiceFollower::Activation::start) {
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("asking GeoClue for the position"), tr));
  connect(&geoclue_, &DBusServiceFollower::appeared, this, &GeoClueLocationSource::askForClient);
  connect(&geoclue_, &DBusServiceFollower::missing, this,
          [this](const QDBusError& error) { notAvailable(error.message()); });
  connect(&geoclue_, &DBusServiceFollower::vanished, this, [this] {
    setCheck(
        DiagnosticsLog::Outcome::degraded,
        Sentence(QT_TR_NOOP("GeoClue went away: the last position stays until it returns"), tr));
  });
  connect(&geoclue_, &DBusServiceFollower::signalReceived, this, [this](const QDBusMessage& news) {
    // LocationUpdated(old, new): the new position's object.
    const auto current = dbus::argument<QDBusObjectPath>(news, 1);
    if (news.path() == client_ && current) readLocation(current->path());
  });
}

GeoClueLocationSource::~GeoClueLocationSource() {
  if (client_.isEmpty() || !geoclue_.present()) return;
  bus_.asyncCall(
      QDBusMessage::createMethodCall(service, client_, clientInterface, QStringLiteral("Stop")));
}

void GeoClueLocationSource::start() {
  geoclue_.start();
}

void GeoClueLocationSource::askForClient() {
  const QDBusMessage call = QDBusMessage::createMethodCall(service, managerPath, managerInterface,
                                                           QStringLiteral("GetClient"));
  geoclue_.call(call, [this](const QDBusMessage& answer) {
    if (const auto client = dbus::argument<QDBusObjectPath>(answer)) {
      configure(client->path());
    } else {
      notAvailable(answer.errorMessage());
    }
  });
}

void GeoClueLocationSource::notAvailable(const QString& why) {
  setCheck(DiagnosticsLog::Outcome::degraded,
           Sentence(QT_TR_NOOP("GeoClue is not available (%1)"), tr).arg(why));
}

// A client must say who it is before it starts; GeoClue's agent decides by that name.
void GeoClueLocationSource::configure(const QString& client) {
  if (!client_.isEmpty()) geoclue_.unfollowSignal(client_, clientInterface, locationUpdated);
  client_ = client;
  geoclue_.followSignal(client_, clientInterface, locationUpdated);
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
  geoclue_.call(call, [this](const QDBusMessage& answer) {
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

void GeoClueLocationSource::readLocation(const QString& path) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(service, path, dbus::properties, QStringLiteral("GetAll"));
  call << locationInterface;
  geoclue_.call(call, [this](const QDBusMessage& answer) {
    const QVariantMap properties = dbus::argument<QVariantMap>(answer).value_or(QVariantMap());
    const auto latitude = dbus::typed<double>(properties, QStringLiteral("Latitude"));
    const auto longitude = dbus::typed<double>(properties, QStringLiteral("Longitude"));
    if (!latitude || !longitude || !std::isfinite(*latitude) || !std::isfinite(*longitude) ||
        std::abs(*latitude) > 90 || std::abs(*longitude) > 180) {
      return;
    }
    publish(GeoCoordinate{*latitude, *longitude});
  });
}

}  // namespace tindra
