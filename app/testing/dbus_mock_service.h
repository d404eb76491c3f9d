// DBusMockService: a python3-dbusmock template run as a real service on a test's bus, for the
// integration tests of the Linux backends. A test program starts it once; a test may stop and
// start it again to see a backend lose its service and get it back.
#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>
#include <QVariantList>

namespace tindra {

class DBusMockService {
 public:
  // `arguments` go to `python3 -m dbusmock`, for example {"--template", "upower"}.
  DBusMockService(QDBusConnection bus, QString busName, QStringList arguments);
  ~DBusMockService();

  // Starts the service and waits until its name is on the bus; false with a reason otherwise.
  bool start(QString* error);
  // Stops the service and waits until its name has left the bus; false if it stayed.
  bool stop();
  // Kills the service (SIGKILL, as a crash would) and waits until its name has left the bus.
  bool kill();

  // Calls one of the template's mock methods (org.freedesktop.DBus.Mock unless `interface` names
  // the template's own); the error text, or empty.
  QString call(const QString& path, const QString& method, const QVariantList& arguments,
               const QString& interface = QStringLiteral("org.freedesktop.DBus.Mock"));

 private:
  bool nameOnBus() const;

  QDBusConnection bus_;
  QString busName_;
  QStringList arguments_;
  QProcess process_;
};

}  // namespace tindra
