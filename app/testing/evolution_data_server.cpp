#include "testing/evolution_data_server.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDir>
#include <QJsonDocument>
#include <QTest>
#include <csignal>

namespace tindra {

namespace {

const QString registryName = QStringLiteral("org.gnome.evolution.dataserver.Sources5");
const QString factoryName = QStringLiteral("org.gnome.evolution.dataserver.Calendar8");

}  // namespace

EvolutionDataServer::EvolutionDataServer(QDBusConnection bus) : bus_(std::move(bus)) {
  for (QProcess* process : {&registry_, &factory_, &client_}) {
    process->setProcessEnvironment(environment());
  }
  registry_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  factory_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  client_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

EvolutionDataServer::~EvolutionDataServer() {
  for (QProcess* process : {&client_, &factory_, &registry_}) {
    process->terminate();
    process->waitForFinished(5000);
  }
}

QProcessEnvironment EvolutionDataServer::environment() const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"config", "data", "cache", "home"}) {
    QDir(dir_.path()).mkpath(QString::fromLatin1(name));
  }
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), dir_.filePath(QStringLiteral("config")));
  environment.insert(QStringLiteral("XDG_DATA_HOME"), dir_.filePath(QStringLiteral("data")));
  environment.insert(QStringLiteral("XDG_CACHE_HOME"), dir_.filePath(QStringLiteral("cache")));
  environment.insert(QStringLiteral("HOME"), dir_.filePath(QStringLiteral("home")));
  environment.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
  return environment;
}

bool EvolutionDataServer::start(QString* error) {
  if (!bus_.isConnected()) {
    *error = QStringLiteral("no bus: ") + bus_.lastError().message();
    return false;
  }
  // Whatever the bus starts by itself (the factory starts the registry when it misses it) gets
  // the same private folders.
  using Variables = QMap<QString, QString>;
  qDBusRegisterMetaType<Variables>();
  Variables variables;
  const QProcessEnvironment ours = environment();
  for (const char* name :
       {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "HOME", "GSETTINGS_BACKEND"}) {
    variables.insert(QString::fromLatin1(name), ours.value(QString::fromLatin1(name)));
  }
  QDBusMessage update = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("UpdateActivationEnvironment"));
  update << QVariant::fromValue(variables);
  const QDBusMessage updated = bus_.call(update, QDBus::Block, 5000);
  if (updated.type() == QDBusMessage::ErrorMessage) {
    *error = QStringLiteral("the bus refuses the environment: ") + updated.errorMessage();
    return false;
  }
  if (!startRegistry(error) || !startFactory(error)) return false;
  client_.start(QStringLiteral("/usr/bin/python3"),
                {QStringLiteral(TINDRA_SOURCE_DIR "/app/testing/evolution_calendars.py")});
  const QJsonObject ready = command({});
  if (!ready.value(QStringLiteral("ready")).toBool()) {
    *error = QStringLiteral("the client did not start: ") +
             ready.value(QStringLiteral("error")).toString();
    return false;
  }
  return true;
}

bool EvolutionDataServer::startService(QProcess& process, const QString& program,
                                       const QString& name, QString* error) {
  if (nameOnBus(name)) return true;
  if (!QFile::exists(program)) {
    *error = program + QStringLiteral(" is not installed (package evolution-data-server)");
    return false;
  }
  process.start(program, {});
  if (!process.waitForStarted(5000) || !QTest::qWaitFor([&] { return nameOnBus(name); }, 20000)) {
    *error = name + QStringLiteral(" did not appear on the bus");
    return false;
  }
  return true;
}

// The factory and the client ask for the registry again at once, and the bus may start it
// anew before the test does: gone, or under a new owner, is gone.
bool EvolutionDataServer::killRegistry() {
  return kill(registry_, registryName);
}

bool EvolutionDataServer::killFactory() {
  return kill(factory_, factoryName);
}

bool EvolutionDataServer::kill(QProcess& process, const QString& name) {
  const QString owner = ownerOf(name);
  if (process.state() != QProcess::NotRunning && process.processId() == processOf(owner)) {
    process.kill();
    process.waitForFinished(5000);
  } else if (const qint64 pid = processOf(owner); pid > 0) {
    ::kill(static_cast<pid_t>(pid), SIGKILL);  // one the bus started on someone's call
  }
  return QTest::qWaitFor([&] { return ownerOf(name) != owner; }, 5000);
}

bool EvolutionDataServer::startRegistry(QString* error) {
  return startService(registry_, QStringLiteral("/usr/libexec/evolution-source-registry"),
                      registryName, error);
}

bool EvolutionDataServer::startThroughBus(QString* error) {
  for (const QString& name : {registryName, factoryName}) {
    QDBusMessage start = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("StartServiceByName"));
    start << name << 0u;
    const QDBusMessage started = bus_.call(start, QDBus::Block, 20000);
    if (started.type() == QDBusMessage::ErrorMessage) {
      *error = name + QStringLiteral(" did not start: ") + started.errorMessage();
      return false;
    }
  }
  return true;
}

bool EvolutionDataServer::startFactory(QString* error) {
  return startService(factory_, QStringLiteral("/usr/libexec/evolution-calendar-factory"),
                      factoryName, error);
}

// The first call (an empty request) only reads the client's greeting.
QJsonObject EvolutionDataServer::command(const QJsonObject& request) {
  if (!request.isEmpty()) {
    client_.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
  }
  if (!QTest::qWaitFor([this] { return client_.canReadLine(); }, 30000)) {
    return {{QStringLiteral("error"), QStringLiteral("the client does not answer")}};
  }
  return QJsonDocument::fromJson(client_.readLine()).object();
}

bool EvolutionDataServer::nameOnBus(const QString& name) const {
  return bus_.interface() && bus_.interface()->isServiceRegistered(name).value();
}

QString EvolutionDataServer::ownerOf(const QString& name) const {
  return bus_.interface() ? bus_.interface()->serviceOwner(name).value() : QString();
}

qint64 EvolutionDataServer::processOf(const QString& owner) const {
  if (owner.isEmpty() || !bus_.interface()) return 0;
  return bus_.interface()->servicePid(owner).value();
}

}  // namespace tindra
