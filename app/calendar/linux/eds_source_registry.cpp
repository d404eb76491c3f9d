#include "calendar/linux/eds_source_registry.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_object_manager.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

const QString registryService = QStringLiteral("org.gnome.evolution.dataserver.Sources5");
const QString managerPath = QStringLiteral("/org/gnome/evolution/dataserver/SourceManager");
const QString sourceInterface = QStringLiteral("org.gnome.evolution.dataserver.Source");

}  // namespace

EdsSourceRegistry::EdsSourceRegistry(QDBusConnection bus, QObject* parent)
    : QObject(parent),
      bus_(bus),
      registry_(std::move(bus), registryService, {}, DBusServiceFollower::Activation::start),
      languages_(EdsSource::userLanguages()) {
  qDBusRegisterMetaType<InterfaceMap>();
  qDBusRegisterMetaType<ManagedObjects>();
  connect(&registry_, &DBusServiceFollower::appeared, this, &EdsSourceRegistry::read);
  connect(&registry_, &DBusServiceFollower::signalReceived, this, &EdsSourceRegistry::onSignal);
  connect(&registry_, &DBusServiceFollower::missing, this, [this](const QDBusError& error) {
    error_ = error.name();
    setState(State::missing);
  });
  connect(&registry_, &DBusServiceFollower::vanished, this, [this] { setState(State::away); });
}

void EdsSourceRegistry::start() {
  if (!bus_.isConnected()) {  // no session bus at all: no call would ever be answered
    error_ = bus_.lastError().isValid() ? bus_.lastError().name() : QStringLiteral("no bus");
    setState(State::missing);
    return;
  }
  registry_.followSignal(managerPath, dbus::objectManager, QStringLiteral("InterfacesAdded"));
  registry_.followSignal(managerPath, dbus::objectManager, QStringLiteral("InterfacesRemoved"));
  // Every source's: one match instead of one per source.
  registry_.followSignal(QString(), dbus::properties, QStringLiteral("PropertiesChanged"));
  registry_.start();
}

void EdsSourceRegistry::read() {
  const QDBusMessage call = QDBusMessage::createMethodCall(
      registryService, managerPath, dbus::objectManager, QStringLiteral("GetManagedObjects"));
  registry_.call(call, [this](const QDBusMessage& answer) {
    const std::optional<ManagedObjects> objects = dbus::argument<ManagedObjects>(answer);
    if (!objects) {
      error_ =
          answer.type() == QDBusMessage::ErrorMessage ? answer.errorName() : answer.signature();
      setState(State::missing);
      return;
    }
    uids_.clear();
    sources_.clear();
    for (auto object = objects->begin(); object != objects->end(); ++object) {
      take(object.key().path(), object.value().value(sourceInterface));
    }
    state_ = State::present;
    update();
    emit changed();
  });
}

void EdsSourceRegistry::onSignal(const QDBusMessage& message) {
  const QString& member = message.member();
  const QString path = dbus::argument<QDBusObjectPath>(message).value_or(QDBusObjectPath()).path();
  if (member == QLatin1String("InterfacesAdded")) {
    take(path,
         dbus::argument<InterfaceMap>(message, 1).value_or(InterfaceMap()).value(sourceInterface));
  } else if (member == QLatin1String("InterfacesRemoved")) {
    if (!dbus::argument<QStringList>(message, 1)
             .value_or(QStringList())
             .contains(sourceInterface)) {
      return;
    }
    if (const auto uid = uids_.find(path); uid != uids_.end()) {
      sources_.erase(uid->second);
      uids_.erase(uid);
    }
  } else if (member == QLatin1String("PropertiesChanged") &&
             dbus::argument<QString>(message) == sourceInterface) {
    take(message.path(), dbus::argument<QVariantMap>(message, 1).value_or(QVariantMap()));
  } else {
    return;
  }
  if (state_ == State::present && update()) emit changed();
}

// A source's properties, all of them or those that changed; without Data nothing changed that
// Tindra reads.
void EdsSourceRegistry::take(const QString& path, const QVariantMap& properties) {
  const std::optional<QString> data = dbus::typed<QString>(properties, QStringLiteral("Data"));
  if (!data) return;
  QString uid = dbus::typed<QString>(properties, QStringLiteral("UID")).value_or(QString());
  if (uid.isEmpty()) {
    const auto known = uids_.find(path);
    if (known == uids_.end()) return;
    uid = known->second;
  }
  uids_[path] = uid;
  sources_[uid] = EdsSource::parse(uid, *data, languages_);
}

bool EdsSourceRegistry::update() {
  return assignIfChanged(calendars_, EdsCalendar::among(sources_));
}

void EdsSourceRegistry::setState(State state) {
  if (state_ == state) return;
  state_ = state;
  emit changed();
}

ServiceCheck EdsSourceRegistry::check() const {
  switch (state_) {
    case State::asking:
      return {DiagnosticsLog::Outcome::ok,
              Sentence(QT_TR_NOOP("asking Evolution Data Server for its calendars"), tr)};
    case State::missing:
      // Not a fault: many desktops have no Evolution Data Server.
      return {DiagnosticsLog::Outcome::ok,
              Sentence(QT_TR_NOOP("Evolution Data Server is not running (%1): its calendars "
                                  "and online accounts are not read"),
                       tr)
                  .arg(error_)};
    case State::away:
      return {DiagnosticsLog::Outcome::degraded,
              Sentence(QT_TR_NOOP("Evolution Data Server's source registry went away: its "
                                  "calendars are kept as they were until it returns"),
                       tr)};
    case State::present:
      break;
  }
  std::map<QString, int> perAccount;
  for (const EdsCalendar& calendar : calendars_) ++perAccount[calendar.account];
  Sentence text(QT_TR_N_NOOP("Evolution Data Server gives %n calendar(s)"), tr,
                static_cast<int>(calendars_.size()));
  for (const auto& [account, count] : perAccount) {
    const Sentence from = account.isEmpty()
                              ? Sentence(QT_TR_N_NOOP("%n without an account"), tr, count)
                              : Sentence(QT_TR_N_NOOP("%n from %1"), tr, count).arg(account);
    text = text.followedBy(
        from, perAccount.begin()->first == account ? QStringLiteral(": ") : QStringLiteral(", "));
  }
  return {DiagnosticsLog::Outcome::ok, text};
}

}  // namespace tindra
