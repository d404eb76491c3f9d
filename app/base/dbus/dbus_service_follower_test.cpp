// Runs in: private-session --offscreen
#include "base/dbus/dbus_service_follower.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QDBusConnectionInterface>
#include <QTest>

#include "base/dbus/dbus_names.h"
#include "testing/dbus_mock_service.h"

namespace tindra {
namespace {

const QString service = QStringLiteral("org.example.Followed");
const QString path = QStringLiteral("/org/example/Followed");
const QString interface = QStringLiteral("org.example.Followed");

bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 5000);
}

// The followed service (app/testing/followed_service.py), started with its Level at `level`.
std::unique_ptr<DBusMockService> followedService(int level) {
  return std::make_unique<DBusMockService>(
      QDBusConnection::sessionBus(), service,
      QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/followed_service.py",
                  "--parameters", QStringLiteral("{\"level\": %1}").arg(level)});
}

QString ownerOnBus() {
  return QDBusConnection::sessionBus().interface()->serviceOwner(service).value();
}

// What the follower told, in order: "appeared", "read 3", "changed 4", "vanished"...
class Recorder {
 public:
  explicit Recorder(DBusServiceFollower& follower) {
    const auto level = [](const QVariantMap& properties) {
      return properties.value(QStringLiteral("Level")).toString();
    };
    QObject::connect(&follower, &DBusServiceFollower::appeared, [this] { told_ << "appeared"; });
    QObject::connect(&follower, &DBusServiceFollower::vanished, [this] { told_ << "vanished"; });
    QObject::connect(&follower, &DBusServiceFollower::missing,
                     [this](const QDBusError& error) { told_ << "missing " + error.name(); });
    QObject::connect(
        &follower, &DBusServiceFollower::read,
        [this, level](const QVariantMap& values) { told_ << "read " + level(values); });
    QObject::connect(
        &follower, &DBusServiceFollower::changed,
        [this, level](const QVariantMap& values) { told_ << "changed " + level(values); });
    QObject::connect(&follower, &DBusServiceFollower::readFailed,
                     [this](const QDBusError& error, const QString& failed) {
                       told_ << "failed " + failed + ' ' + error.name();
                     });
  }

  bool saw(const QString& what) const { return told_.contains(what); }
  bool waitFor(const QString& what) const {
    return tindra::waitFor([&] { return saw(what); });
  }
  QStringList since(qsizetype index) const { return told_.mid(index); }
  qsizetype size() const { return told_.size(); }

 private:
  QStringList told_;
};

// The mock's own methods: a new Level with PropertiesChanged, or only the news that it changed.
void setLevel(DBusMockService& running, int level) {
  ASSERT_EQ(running.call(path, "UpdateProperties", {interface, QVariantMap{{"Level", level}}}),
            QString());
}
void invalidateLevel(DBusMockService& running) {
  ASSERT_EQ(running.call(path, "EmitSignal",
                         {dbus::properties, "PropertiesChanged", "sa{sv}as",
                          QVariantList{interface, QVariantMap(), QStringList{"Level"}}}),
            QString());
}

TEST(DBusServiceFollowerTest, ReadsEachComingFollowsChangesAndKeepsOnlyTheLatestService) {
  DBusServiceFollower follower(QDBusConnection::sessionBus(), service, {{path, interface}});
  Recorder recorder(follower);
  follower.start();
  ASSERT_TRUE(recorder.waitFor("missing org.freedesktop.DBus.Error.NameHasNoOwner"));
  EXPECT_TRUE(follower.settled());
  EXPECT_FALSE(follower.present());

  auto running = followedService(1);
  QString error;
  ASSERT_TRUE(running->start(&error)) << error.toStdString();
  ASSERT_TRUE(recorder.waitFor("read 1"));
  EXPECT_EQ(follower.owner(), ownerOnBus());
  setLevel(*running, 2);
  ASSERT_TRUE(recorder.waitFor("changed 2"));
  invalidateLevel(*running);  // read again: the news carries no value
  ASSERT_TRUE(waitFor([&] { return recorder.since(0).count("read 2") == 1; }));

  // Stopped, then started twice in a row, each time with its own Level.
  const qsizetype before = recorder.size();
  ASSERT_TRUE(running->stop());
  running = followedService(10);
  ASSERT_TRUE(running->start(&error)) << error.toStdString();
  ASSERT_TRUE(running->stop());
  running = followedService(20);
  ASSERT_TRUE(running->start(&error)) << error.toStdString();
  ASSERT_TRUE(recorder.waitFor("read 20"));
  setLevel(*running, 21);
  ASSERT_TRUE(recorder.waitFor("changed 21"));

  const QStringList after = recorder.since(before);
  EXPECT_EQ(after.count("appeared"), 2) << after.join(", ").toStdString();
  EXPECT_EQ(after.count("vanished"), 2) << after.join(", ").toStdString();
  // Nothing of the second start arrives once the third is there.
  EXPECT_EQ(after.mid(after.lastIndexOf("appeared")),
            (QStringList{"appeared", "read 20", "changed 21"}))
      << after.join(", ").toStdString();
  EXPECT_EQ(follower.owner(), ownerOnBus());
}

// A service that stops answering (SIGSTOP) and is then killed: the GetAll asked for meanwhile is
// answered by the bus with an error, which must not reach the owner as a failed read, nor may
// anything else from that service once the next one is there.
TEST(DBusServiceFollowerTest, AnAnswerFromAServiceThatLeftIsDropped) {
  auto running = followedService(5);
  QString error;
  ASSERT_TRUE(running->start(&error)) << error.toStdString();
  DBusServiceFollower follower(QDBusConnection::sessionBus(), service, {{path, interface}});
  Recorder recorder(follower);
  follower.start();
  ASSERT_TRUE(recorder.waitFor("read 5"));

  const uint pid = QDBusConnection::sessionBus().interface()->servicePid(service).value();
  ASSERT_GT(pid, 0u);
  bool answered = false;
  invalidateLevel(*running);  // the follower reads again once it sees this
  ::kill(static_cast<pid_t>(pid), SIGSTOP);
  follower.call(QDBusMessage::createMethodCall(service, path, dbus::properties, "GetAll")
                    << interface,
                [&](const QDBusMessage&) { answered = true; });
  QTest::qWait(200);  // both questions are with the stopped service now
  const qsizetype before = recorder.size();
  ::kill(static_cast<pid_t>(pid), SIGKILL);
  ASSERT_TRUE(recorder.waitFor("vanished"));
  running->stop();
  QTest::qWait(200);
  EXPECT_EQ(recorder.since(before), QStringList{"vanished"});
  EXPECT_FALSE(answered);

  running = followedService(6);
  ASSERT_TRUE(running->start(&error)) << error.toStdString();
  ASSERT_TRUE(recorder.waitFor("read 6"));
  EXPECT_EQ(recorder.since(before), (QStringList{"vanished", "appeared", "read 6"}));
}

TEST(DBusServiceFollowerTest, OnlyTheServiceItselfIsHeardAndWhatItLacksIsSaid) {
  auto running = followedService(7);
  QString error;
  ASSERT_TRUE(running->start(&error)) << error.toStdString();
  const QString other = QStringLiteral("org.example.Other");
  DBusServiceFollower follower(QDBusConnection::sessionBus(), service,
                               {{path, interface}, {path, other}});
  Recorder recorder(follower);
  follower.start();
  ASSERT_TRUE(recorder.waitFor("read 7"));
  ASSERT_TRUE(recorder.waitFor("failed " + other + " org.example.Followed.UnknownInterface"));

  // The same news from another connection is not the service's.
  QDBusMessage forged = QDBusMessage::createSignal(path, dbus::properties, "PropertiesChanged");
  forged << interface << QVariantMap{{"Level", 99}} << QStringList();
  ASSERT_TRUE(QDBusConnection::sessionBus().send(forged));
  setLevel(*running, 8);
  ASSERT_TRUE(recorder.waitFor("changed 8"));
  EXPECT_FALSE(recorder.saw("changed 99"));

  // A service nobody can start is missing with the bus's reason.
  DBusServiceFollower nobody(QDBusConnection::sessionBus(), QStringLiteral("org.example.Nobody"),
                             {}, DBusServiceFollower::Activation::start);
  Recorder told(nobody);
  nobody.start();
  EXPECT_TRUE(told.waitFor("missing org.freedesktop.DBus.Error.ServiceUnknown"));
}

}  // namespace
}  // namespace tindra
