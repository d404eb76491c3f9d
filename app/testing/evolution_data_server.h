// EvolutionDataServer: the real Evolution Data Server (its source registry and calendar factory)
// on a test's session bus, with configuration, data and cache folders of its own, and its own
// client library driving it (app/testing/evolution_calendars.py) to add calendars and events the
// way Evolution and GNOME Online Accounts do. A test program starts it once; a test may kill the
// registry and start it again.
#pragma once

#include <QDBusConnection>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace tindra {

class EvolutionDataServer {
 public:
  explicit EvolutionDataServer(QDBusConnection bus);
  ~EvolutionDataServer();

  // Starts the registry, the calendar factory and the client; false with a reason otherwise.
  bool start(QString* error);
  // Kills the registry (as a crash would) and waits until its name has left the bus.
  bool killRegistry();
  // Starts the registry again, unless something started it meanwhile through the bus.
  bool startRegistry(QString* error);
  // Kills the calendar factory, and waits until its name has left the bus or has a new owner.
  bool killFactory();
  // Starts the registry and the calendar factory as a desktop does, through the bus, which starts
  // one of each however many ask; false with a reason when one does not come.
  bool startThroughBus(QString* error);

  // One command of evolution_calendars.py; its answer, with "error" when it failed.
  QJsonObject command(const QJsonObject& request);
  // The folder the services keep their data in ($XDG_DATA_HOME).
  QString dataHome() const { return dir_.filePath(QStringLiteral("data")); }

 private:
  bool kill(QProcess& process, const QString& name);
  bool startService(QProcess& process, const QString& program, const QString& name, QString* error);
  bool startFactory(QString* error);
  bool nameOnBus(const QString& name) const;
  QString ownerOf(const QString& name) const;
  qint64 processOf(const QString& owner) const;
  QProcessEnvironment environment() const;

  QDBusConnection bus_;
  QTemporaryDir dir_;
  QProcess registry_;
  QProcess factory_;
  QProcess client_;
};

}  // namespace tindra
