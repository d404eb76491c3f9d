// Runs in: private-session --xvfb
// Tindra and its now-playing helper end together, however Tindra ends: killed outright, its
// helper still goes within moments; sent SIGTERM (a logout), it quits with status 0, taking the
// helper with it, leaving what was last written on disk and no temporary file behind, and
// without taking the logout for the user dismissing its introduction. The helper
// alone ends when its standard input closes, when its bus goes away, and when its parent dies
// while it has no input to watch.
// Helpers are told apart from any other Tindra's on this machine by their program (this build's)
// and their bus (this session's, or the test's own).
#include <gtest/gtest.h>
#include <signal.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace tindra {
namespace {

const QString adapter = QFileInfo(QFileInfo(QStringLiteral(TINDRA_BINARY)).dir(),
                                  QStringLiteral("../tools/tindra-mpris-adapter"))
                            .canonicalFilePath();

QByteArray sessionBus() {
  return qgetenv("DBUS_SESSION_BUS_ADDRESS");
}

// The running streams of this build's helper on the bus at `address`.
QList<qint64> adapterStreams(const QByteArray& address) {
  QList<qint64> found;
  const QByteArray wanted = "DBUS_SESSION_BUS_ADDRESS=" + address;
  for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
    bool number = false;
    const qint64 id = entry.toLongLong(&number);
    if (!number) continue;
    QFile commandLine(QStringLiteral("/proc/%1/cmdline").arg(id));
    QFile environment(QStringLiteral("/proc/%1/environ").arg(id));
    // A zombie has an empty command line: it has ended, only its parent has not looked yet.
    if (!commandLine.open(QIODevice::ReadOnly) || !environment.open(QIODevice::ReadOnly)) continue;
    const QList<QByteArray> words = commandLine.readAll().split('\0');
    if (words.size() < 2 || QString::fromLocal8Bit(words[0]) != adapter || words[1] != "stream") {
      continue;
    }
    if (environment.readAll().split('\0').contains(wanted)) found << id;
  }
  return found;
}

// Waits for them to end; whatever is left is killed, so that one case's failure is not the
// next one's.
bool adapterStreamsEnd(const QByteArray& address, int milliseconds) {
  if (QTest::qWaitFor([&] { return adapterStreams(address).isEmpty(); }, milliseconds)) {
    return true;
  }
  for (const qint64 id : adapterStreams(address)) ::kill(static_cast<pid_t>(id), SIGKILL);
  return false;
}

// Temporary files of interrupted saves under `folder`.
QStringList temporaryFiles(const QString& folder) {
  QStringList found;
  QDirIterator files(folder, {QStringLiteral("*.tmp")}, QDir::Files | QDir::Hidden,
                     QDirIterator::Subdirectories);
  while (files.hasNext()) found << files.next();
  return found;
}

bool onTheBus(qint64 process) {
  QDBusConnectionInterface& bus = *QDBusConnection::sessionBus().interface();
  for (const QString& name : bus.registeredServiceNames().value()) {
    if (name.startsWith(u':') && bus.servicePid(name).value() == process) return true;
  }
  return false;
}

class CleanExitTest : public ::testing::Test {
 protected:
  static constexpr int settleMilliseconds = 500;

  void SetUp() override {
    ASSERT_FALSE(adapter.isEmpty()) << "the helper is not built beside " << TINDRA_BINARY;
    ASSERT_TRUE(adapterStreams(sessionBus()).isEmpty()) << "a helper left by an earlier case";
  }

  // Tindra on this session, once its helper streams. No player runs, so the helper idles as
  // it mostly does: it writes nothing, and no broken pipe would end it for the watches it has.
  void startTindra() {
    tindra_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tindra_.setProcessEnvironment(environment());
    tindra_.start(QStringLiteral(TINDRA_BINARY), {});
    ASSERT_TRUE(tindra_.waitForStarted());
    ASSERT_TRUE(QTest::qWaitFor([] { return !adapterStreams(sessionBus()).isEmpty(); }, 20000))
        << "Tindra started no helper";
    // Its first message follows its arrival on the bus within moments; once that is out, the
    // helper has nothing more to say.
    const qint64 helper = adapterStreams(sessionBus()).front();
    ASSERT_TRUE(QTest::qWaitFor([helper] { return onTheBus(helper); }, 10000));
    QTest::qWait(settleMilliseconds);
  }

  // Folders of its own, so that what this Tindra writes (and its first start) is not the
  // other tests'.
  QProcessEnvironment environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), config());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), data());
    return environment;
  }
  QString config() const { return home_.filePath(QStringLiteral("config")); }
  QString data() const { return home_.filePath(QStringLiteral("data")); }

  QTemporaryDir home_;
  QProcess tindra_;
};

TEST_F(CleanExitTest, KilledTindraTakesItsHelperAlong) {
  startTindra();
  ::kill(static_cast<pid_t>(tindra_.processId()), SIGKILL);
  EXPECT_TRUE(adapterStreamsEnd(sessionBus(), 2000)) << "the helper outlived Tindra";
}

TEST_F(CleanExitTest, LogoutQuitsCleanlyKeepingTheLastChange) {
  startTindra();
  // What a shortcut writes a moment before the session ends must survive Tindra's way out.
  QProcess focus;
  focus.setProcessEnvironment(environment());
  focus.start(QStringLiteral(TINDRA_BINARY), {QStringLiteral("focus"), QStringLiteral("on"),
                                              QStringLiteral("--name"), QStringLiteral("Reading")});
  ASSERT_TRUE(focus.waitForFinished(10000));
  ASSERT_EQ(focus.exitCode(), 0);
  ::kill(static_cast<pid_t>(tindra_.processId()), SIGTERM);
  ASSERT_TRUE(tindra_.waitForFinished(3000)) << "Tindra did not quit on SIGTERM";
  EXPECT_EQ(tindra_.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(tindra_.exitCode(), 0);
  EXPECT_TRUE(adapterStreams(sessionBus()).isEmpty()) << "Tindra quit before its helper";

  QFile settings(config() + QStringLiteral("/tindra/settings.json"));
  ASSERT_TRUE(settings.open(QIODevice::ReadOnly));
  const QByteArray saved = settings.readAll();
  EXPECT_TRUE(saved.contains("Reading")) << saved.toStdString();
  // A logout is nobody dismissing the first start's introduction: it shows again next time.
  EXPECT_FALSE(saved.contains("onboardingCompleted")) << saved.toStdString();
  EXPECT_EQ(temporaryFiles(config()), QStringList());
  EXPECT_EQ(temporaryFiles(data()), QStringList());
}

// The helper on its own, as any program might start it.
class AdapterAloneTest : public ::testing::Test {
 protected:
  // Starts a stream on the bus `address` and waits for its first message.
  static void startStream(QProcess& stream, const QByteArray& address) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromUtf8(address));
    stream.setProcessEnvironment(environment);
    stream.start(adapter, {QStringLiteral("stream"), QStringLiteral("--micros")});
    ASSERT_TRUE(stream.waitForReadyRead(10000)) << "the stream said nothing";
  }
};

TEST_F(AdapterAloneTest, EndsWhenItsInputOrItsBusEnds) {
  {
    QProcess stream;
    startStream(stream, sessionBus());
    stream.closeWriteChannel();
    ASSERT_TRUE(stream.waitForFinished(2000)) << "it outlived its standard input";
    EXPECT_EQ(stream.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(stream.exitCode(), 0);
  }
  {
    // A bus of its own, to take away from it.
    QProcess daemon;
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"),
                  QStringLiteral("--print-address")});
    ASSERT_TRUE(daemon.waitForReadyRead(10000)) << "dbus-daemon did not start";
    const QByteArray address = daemon.readLine().trimmed();
    QProcess stream;
    startStream(stream, address);
    daemon.kill();
    daemon.waitForFinished(2000);
    ASSERT_TRUE(stream.waitForFinished(2000)) << "it outlived its bus";
    EXPECT_EQ(stream.exitStatus(), QProcess::NormalExit);
  }
}

TEST_F(AdapterAloneTest, EndsWithItsParentWithoutAnInputToWatch) {
  ASSERT_TRUE(adapterStreams(sessionBus()).isEmpty());
  // A shell starts the stream with standard input closed and is killed, so only the kernel's
  // parent-death signal is left to end it. The shell's own output pipes stay with us.
  QProcess shell;
  shell.start(
      QStringLiteral("sh"),
      {QStringLiteral("-c"), QStringLiteral("\"$0\" stream --micros 0<&- & wait"), adapter});
  ASSERT_TRUE(shell.waitForReadyRead(10000)) << "the stream said nothing";
  ASSERT_EQ(adapterStreams(sessionBus()).size(), 1);
  ::kill(static_cast<pid_t>(shell.processId()), SIGKILL);
  shell.waitForFinished(2000);
  EXPECT_TRUE(adapterStreamsEnd(sessionBus(), 2000)) << "it outlived its parent";
}

}  // namespace
}  // namespace tindra
