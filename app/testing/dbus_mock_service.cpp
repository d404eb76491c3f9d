#include "testing/dbus_mock_service.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QTest>

namespace tindra {

DBusMockService::DBusMockService(QDBusConnection bus, QString busName, QStringList arguments)
    : bus_(std::move(bus)), busName_(std::move(busName)), arguments_(std::move(arguments)) {
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

DBusMockService::~DBusMockService() {
  stop();
}

bool DBusMockService::start(QString* error) {
  if (!bus_.isConnected()) {
    *error = QStringLiteral("no bus: ") + bus_.lastError().message();
    return false;
  }
  // Debian's interpreter: the one on PATH may lack the dbus module.
  process_.start(QStringLiteral("/usr/bin/python3"), QStringList{"-m", "dbusmock"} + arguments_);
  if (!process_.waitForStarted(5000)) {
    *error = QStringLiteral("python3-dbusmock did not start: ") + process_.errorString();
    return false;
  }
  if (!QTest::qWaitFor([this] { return nameOnBus(); }, 10000)) {
    *error = busName_ + QStringLiteral(" did not appear on the bus");
    return false;
  }
  return true;
}

bool DBusMockService::stop() {
  process_.terminate();
  process_.waitForFinished(5000);
  return QTest::qWaitFor([this] { return !nameOnBus(); }, 5000);
}

bool DBusMockService::kill() {
  process_.kill();
  process_.waitForFinished(5000);
  return QTest::qWaitFor([this] { return !nameOnBus(); }, 5000);
}

QString DBusMockService::call(const QString& path, const QString& method,
                              const QVariantList& arguments, const QString& interface) {
  QDBusMessage message = QDBusMessage::createMethodCall(busName_, path, interface, method);
  message.setArguments(arguments);
  const QDBusMessage reply = bus_.call(message, QDBus::Block, 5000);
  return reply.type() == QDBusMessage::ErrorMessage ? reply.errorMessage() : QString();
}

bool DBusMockService::nameOnBus() const {
  return bus_.interface() && bus_.interface()->isServiceRegistered(busName_).value();
}

}  // namespace tindra
