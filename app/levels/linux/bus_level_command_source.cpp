#include "levels/linux/bus_level_command_source.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include "base/dbus/dbus_names.h"
#include "base/dbus/dbus_reply.h"

namespace tindra {

namespace {

// RequestName's flag and answer, as the bus numbers them.
constexpr uint doNotQueue = 4;
constexpr uint primaryOwner = 1;
constexpr int answerWithin = 2000;  // ms; a running Tindra answers in a frame

}  // namespace

BusLevelCommandSource::BusLevelCommandSource(QDBusConnection bus, QObject* parent)
    : LevelCommandSource(parent), bus_(std::move(bus)) {
  setCheck(DiagnosticsLog::Outcome::ok,
           Sentence(QT_TR_NOOP("asking the session bus for the name of the level commands"), tr));
}

BusLevelCommandSource::~BusLevelCommandSource() {
  if (!registered_) return;
  bus_.unregisterObject(path);
  bus_.unregisterService(service);
}

void BusLevelCommandSource::start() {
  bus_.registerObject(path, this, QDBusConnection::ExportScriptableSlots);
  QDBusMessage ask = QDBusMessage::createMethodCall(
      dbus::busService, dbus::busPath, dbus::busService, QStringLiteral("RequestName"));
  ask << service << doNotQueue;
  whenAnswered(bus_.asyncCall(ask), this, [this](const QDBusMessage& answer) {
    if (dbus::argument<uint>(answer) == primaryOwner) {
      registered_ = true;
      setCheck(DiagnosticsLog::Outcome::ok,
               Sentence(QT_TR_NOOP("`tindra level` commands step the levels (%1 on the "
                                   "session bus)"),
                        tr)
                   .arg(service));
      return;
    }
    bus_.unregisterObject(path);
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("another program holds %1 on the session bus: `tindra level` "
                                 "commands go there"),
                      tr)
                 .arg(service));
  });
}

bool BusLevelCommandSource::Press(const QString& key, bool fine) {
  const std::optional<LevelCommand> command = LevelCommand::fromKeyName(key, fine);
  return command && handle(*command);
}

int BusLevelCommandSource::send(const QDBusConnection& bus, const LevelCommand& command,
                                QTextStream& err) {
  if (!bus.isConnected()) {
    err << "tindra level: no session bus, so no running Tindra can be reached\n";
    return 1;
  }
  QDBusMessage press =
      QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Press"));
  press << command.keyName() << command.fine;
  const QDBusMessage answer = bus.call(press, QDBus::Block, answerWithin);
  if (answer.type() == QDBusMessage::ErrorMessage) {
    if (answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown")) {
      err << "tindra level: Tindra is not running in this session\n";
    } else {
      err << "tindra level: Tindra did not answer (" << answer.errorMessage() << ")\n";
    }
    return 1;
  }
  if (dbus::argument<bool>(answer) != true) {
    err << "tindra level: Tindra leaves this key to the desktop now (its level indicator for it "
           "is off in Settings, or the level cannot be set)\n";
    return 1;
  }
  return 0;
}

}  // namespace tindra
