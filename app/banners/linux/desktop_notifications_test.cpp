// Runs in: private-session --offscreen --system-bus
// The desktop side of Focus, calls and messages and the screen lock, against real buses: a
// python3-dbusmock notification server on the private session bus with real clients (notify-send
// and a python program), GNOME's settings in a key file written by the real `gsettings`, the
// real `tindra focus` command, and a mocked logind on the private system bus.
#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include "banners/banner_provider.h"
#include "banners/linux/dbus_notification_monitor.h"
#include "banners/linux/desktop_entry_opener.h"
#include "base/activity_center.h"
#include "base/settings_file_watcher.h"
#include "focus/fake_focus_status_source.h"
#include "focus/focus_provider.h"
#include "focus/linux/gsettings_focus_source.h"
#include "focus/linux/notification_server_focus_source.h"
#include "lockscreen/linux/logind_lock_source.h"
#include "lockscreen/lock_screen_provider.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "testing/dbus_mock_service.h"
#include "testing/provider_test_context.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");

bool waitFor(const std::function<bool()>& condition, int ms = 5000) {
  return QTest::qWaitFor(condition, ms);
}

// A round trip on the session bus: the signal matches asked for before it are in place, so a
// signal another program sends after it reaches us.
void syncSessionBus() {
  QDBusConnection::sessionBus().interface()->isServiceRegistered(QStringLiteral("org.example"));
}

// Runs a client to the end; its standard output, or a failure.
QString run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(10000) || process.exitCode() != 0) {
    ADD_FAILURE() << program.toStdString()
                  << " failed: " << process.readAllStandardError().toStdString();
  }
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

// A python client that sends a notification with actions and hints, as chat and phone programs
// do, and prints its number.
quint32 pythonNotify(const QString& app, const QString& summary, const QString& body,
                     const QString& category, const QString& desktopEntry) {
  const QString script = QStringLiteral(
      "import dbus, sys\n"
      "bus = dbus.SessionBus()\n"
      "n = dbus.Interface(bus.get_object('org.freedesktop.Notifications',"
      " '/org/freedesktop/Notifications'), 'org.freedesktop.Notifications')\n"
      "hints = {'category': sys.argv[4], 'desktop-entry': sys.argv[5], 'urgency': dbus.Byte(2)}\n"
      "print(n.Notify(sys.argv[1], 0, 'call-start', sys.argv[2], sys.argv[3],"
      " ['answer', 'Answer', 'decline', 'Decline'], hints, 0))\n");
  return run(QStringLiteral("/usr/bin/python3"),
             {"-c", script, app, summary, body, category, desktopEntry})
      .toUInt();
}

// A chat message sent from this process, without waiting for the server's answer.
void sendMessage(const QString& body) {
  QDBusMessage notify =
      QDBusMessage::createMethodCall("org.freedesktop.Notifications", notificationsPath,
                                     "org.freedesktop.Notifications", "Notify");
  notify << "Chat" << 0u << QString() << "Ana" << body << QStringList()
         << QVariantMap{{"category", "im.received"}} << -1;
  QDBusConnection::sessionBus().asyncCall(notify);
}

qsizetype entriesSaying(const DiagnosticsLog& diagnostics, const QString& text) {
  return std::ranges::count_if(diagnostics.entries(), [&](const DiagnosticsLog::Entry& entry) {
    return entry.text.english().contains(text);
  });
}

void closeNotification(quint32 id) {
  run(QStringLiteral("gdbus"),
      {"call", "--session", "--dest", "org.freedesktop.Notifications", "--object-path",
       notificationsPath, "--method", "org.freedesktop.Notifications.CloseNotification",
       QString::number(id)});
}

// One notification server for the whole program, on the private session bus.
class DesktopNotificationsTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    server_ = std::make_unique<DBusMockService>(QDBusConnection::sessionBus(),
                                                QStringLiteral("org.freedesktop.Notifications"),
                                                QStringList{"--template", "notification_daemon"});
    if (!server_->start(&startError_)) server_.reset();
  }
  static void TearDownTestSuite() { server_.reset(); }

  void SetUp() override {
    if (!server_) SKIP_OR_FAIL_ON_CI("no mocked notification server: " + startError_.toStdString());
  }

  static void setInhibited(bool inhibited) {
    // The template has no do-not-disturb; the property is added the first time.
    server_->call(
        notificationsPath, "AddProperty",
        {QString(), QStringLiteral("Inhibited"), QVariant::fromValue(QDBusVariant(false))});
    ASSERT_EQ(server_->call(notificationsPath, "UpdateProperties",
                            {QString(), QVariantMap{{"Inhibited", inhibited}}}),
              QString());
  }

  static inline std::unique_ptr<DBusMockService> server_;
  static inline QString startError_;
};

TEST_F(DesktopNotificationsTest, TheMonitorReadsWhatRealClientsSendWithTheServersNumbers) {
  DBusNotificationMonitor monitor(QDBusConnection::sessionBus());
  QSignalSpy notified(&monitor, &NotificationSource::notified);
  QSignalSpy closed(&monitor, &NotificationSource::closed);
  monitor.start();
  ASSERT_TRUE(
      waitFor([&] { return monitor.check().text.english().startsWith("reading notification"); }));

  run(QStringLiteral("notify-send"),
      {"--app-name=Chat", "--category=im.received", "--hint=string:desktop-entry:org.example.Chat",
       "Ana", "<b>Lunch?</b> &amp; more"});
  ASSERT_TRUE(waitFor([&] { return notified.count() == 1; }));
  const auto message = notified[0][0].value<DesktopNotification>();
  EXPECT_EQ(message.appName, "Chat");
  EXPECT_EQ(message.desktopEntry, "org.example.Chat");
  EXPECT_EQ(message.category, "im.received");
  EXPECT_EQ(message.summary, "Ana");
  EXPECT_EQ(message.body, "<b>Lunch?</b> &amp; more");
  EXPECT_GT(message.id, 0u);

  const quint32 id = pythonNotify("Phone", "Ana", "", "call.incoming", "org.gnome.Calls.desktop");
  ASSERT_TRUE(waitFor([&] { return notified.count() == 2; }));
  const auto call = notified[1][0].value<DesktopNotification>();
  EXPECT_EQ(call.id, id);
  EXPECT_EQ(call.desktopEntry, "org.gnome.Calls");
  EXPECT_EQ(call.actions, (std::vector<std::string>{"answer", "Answer", "decline", "Decline"}));

  closeNotification(id);
  ASSERT_TRUE(waitFor([&] { return closed.count() == 1; }));
  EXPECT_EQ(closed[0][0].toUInt(), id);

  monitor.stop();
  run(QStringLiteral("notify-send"), {"--app-name=Chat", "unseen"});
  QTest::qWait(200);
  EXPECT_EQ(notified.count(), 2);
}

// GNOME's own applications, and sandboxed ones through the portal, notify through GLib's
// org.gtk.Notifications, which GNOME Shell serves; a mock stands in for it here.
TEST_F(DesktopNotificationsTest, GLibsNotificationsAreReadToo) {
  DBusMockService shell(
      QDBusConnection::sessionBus(), QStringLiteral("org.gtk.Notifications"),
      {"org.gtk.Notifications", "/org/gtk/Notifications", "org.gtk.Notifications"});
  QString error;
  ASSERT_TRUE(shell.start(&error)) << error.toStdString();
  for (const auto& [method, signature] :
       {std::pair{"AddNotification", "ssa{sv}"}, std::pair{"RemoveNotification", "ss"}}) {
    ASSERT_EQ(shell.call("/org/gtk/Notifications", "AddMethod",
                         {QString(), QString(method), QString(signature), QString(), QString()}),
              QString());
  }
  DBusNotificationMonitor monitor(QDBusConnection::sessionBus());
  QSignalSpy notified(&monitor, &NotificationSource::notified);
  QSignalSpy closed(&monitor, &NotificationSource::closed);
  monitor.start();
  ASSERT_TRUE(
      waitFor([&] { return monitor.check().text.english().startsWith("reading notification"); }));

  const QString gtk = QStringLiteral("org.gtk.Notifications");
  run(QStringLiteral("gdbus"),
      {"call", "--session", "--dest", gtk, "--object-path", "/org/gtk/Notifications", "--method",
       gtk + ".AddNotification", "org.gnome.Fractal", "room-7",
       "{'title': <'Ana'>, 'body': <'Hi'>, 'category': <'im.received'>, 'priority': <'high'>}"});
  ASSERT_TRUE(waitFor([&] { return notified.count() == 1; }));
  const auto message = notified[0][0].value<DesktopNotification>();
  EXPECT_EQ(message.desktopEntry, "org.gnome.Fractal");
  EXPECT_EQ(message.summary, "Ana");
  EXPECT_EQ(message.body, "Hi");
  EXPECT_EQ(message.category, "im.received");

  run(QStringLiteral("gdbus"),
      {"call", "--session", "--dest", gtk, "--object-path", "/org/gtk/Notifications", "--method",
       gtk + ".RemoveNotification", "org.gnome.Fractal", "room-7"});
  ASSERT_TRUE(waitFor([&] { return closed.count() == 1; }));
  EXPECT_EQ(closed[0][0].toUInt(), message.id);
}

TEST_F(DesktopNotificationsTest, CallsAndMessagesReachTheNotchAndQuietWithDoNotDisturb) {
  ProviderTestContext context;
  auto focusSource = std::make_shared<NotificationServerFocusSource>(QDBusConnection::sessionBus());
  FocusProvider focus(context, focusSource);
  BannerProvider banners(
      context, std::make_unique<DBusNotificationMonitor>(QDBusConnection::sessionBus()),
      focusSource, std::make_unique<DesktopEntryOpener>(), BannerApps::defaults());
  ASSERT_TRUE(context.settings().write(settings::experimentalCallNotices, true));
  ASSERT_TRUE(context.settings().write(settings::experimentalMessageNotices, true));
  setInhibited(false);
  focus.start();
  banners.start();
  ASSERT_TRUE(waitFor([&] { return focusSource->focused() == false; }));
  ASSERT_TRUE(waitFor([&] {
    return std::ranges::any_of(context.diagnostics().entries(),
                               [](const DiagnosticsLog::Entry& entry) {
                                 return entry.text.english().startsWith("reading notification");
                               });
  }));

  const quint32 ringing = pythonNotify("Phone", "Ana", "", "call.incoming", "");
  ASSERT_TRUE(
      waitFor([&] { return context.activities().current() == ActivityKind::incomingCall; }));
  closeNotification(ringing);
  ASSERT_TRUE(waitFor([&] { return context.activities().current() == ActivityKind::idle; }));

  QElapsedTimer sent;
  sent.start();
  run(QStringLiteral("notify-send"), {"--app-name=Chat", "--category=im.received", "Ana", "Hi"});
  ASSERT_TRUE(waitFor([&] { return context.activities().current() == ActivityKind::message; }));
  std::printf("notify-send to the message activity: %lld ms (the client's start included)\n",
              static_cast<long long>(sent.elapsed()));
  EXPECT_EQ(banners.viewModel()->body(), "Hi");

  setInhibited(true);
  ASSERT_TRUE(waitFor([&] { return focus.shown().has_value(); }));
  EXPECT_EQ(focus.shown()->symbol, FocusSymbol::moon);
  EXPECT_FALSE(banners.viewModel()->showing());
  run(QStringLiteral("notify-send"), {"--app-name=Chat", "--category=im.received", "Bo", "Psst"});
  QTest::qWait(300);
  EXPECT_FALSE(banners.viewModel()->showing());
  setInhibited(false);
  ASSERT_TRUE(waitFor([&] { return !focus.shown().has_value(); }));
}

TEST_F(DesktopNotificationsTest, AServerThatGoesAndComesBackIsFollowed) {
  DBusNotificationMonitor monitor(QDBusConnection::sessionBus());
  QSignalSpy notified(&monitor, &NotificationSource::notified);
  QSignalSpy gone(&monitor, &NotificationSource::serverGone);
  NotificationServerFocusSource focus(QDBusConnection::sessionBus());
  monitor.start();
  focus.start();
  ASSERT_TRUE(
      waitFor([&] { return monitor.check().text.english().startsWith("reading notification"); }));
  ASSERT_TRUE(waitFor([&] { return focus.focused().has_value(); }));

  ASSERT_TRUE(server_->stop());
  ASSERT_TRUE(waitFor([&] { return gone.count() == 1; }));
  ASSERT_TRUE(
      waitFor([&] { return monitor.check().outcome == DiagnosticsLog::Outcome::degraded; }));
  EXPECT_TRUE(waitFor([&] { return focus.check().text.english().contains("went away"); }))
      << focus.check().text.english().toStdString();

  QString error;
  ASSERT_TRUE(server_->start(&error)) << error.toStdString();
  ASSERT_TRUE(
      waitFor([&] { return monitor.check().text.english().startsWith("reading notification"); }));
  // The new server has no do-not-disturb to read.
  EXPECT_TRUE(waitFor([&] { return focus.check().text.english().contains("no Inhibited"); }));
  run(QStringLiteral("notify-send"), {"--app-name=Chat", "back"});
  EXPECT_TRUE(waitFor([&] { return notified.count() == 1; }));
}

// A server waiting in the name's queue takes over in the same instant the crashed one leaves,
// long before the monitor could be attached anew: the crash is still told. Both servers are
// connections of the test's own, so that the name passes from one to the other in one step.
TEST_F(DesktopNotificationsTest, AServerReplacedInTheSameInstantLeavesItsCrashInDiagnostics) {
  ASSERT_TRUE(server_->stop());
  const QString name = QStringLiteral("org.freedesktop.Notifications");
  const auto serverConnection = [&](const QString& connection, auto option) {
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connection);
    return bus.interface()
        ->registerService(name, option, QDBusConnectionInterface::DontAllowReplacement)
        .value();
  };
  ASSERT_EQ(serverConnection("crashing server", QDBusConnectionInterface::DontQueueService),
            QDBusConnectionInterface::ServiceRegistered);

  DBusNotificationMonitor monitor(QDBusConnection::sessionBus());
  std::vector<DiagnosticsLog::Outcome> outcomes;
  QObject::connect(&monitor, &NotificationSource::checkChanged,
                   [&] { outcomes.push_back(monitor.check().outcome); });
  const auto reading = [&] {
    return monitor.check().text.english().startsWith("reading notification");
  };
  monitor.start();
  ASSERT_TRUE(waitFor(reading));
  ASSERT_EQ(serverConnection("waiting server", QDBusConnectionInterface::QueueService),
            QDBusConnectionInterface::ServiceQueued);
  outcomes.clear();
  QDBusConnection::disconnectFromBus(QStringLiteral("crashing server"));
  EXPECT_TRUE(waitFor([&] { return outcomes.size() >= 2 && reading(); }));
  ASSERT_FALSE(outcomes.empty());
  EXPECT_EQ(outcomes.front(), DiagnosticsLog::Outcome::degraded);

  QDBusConnection::disconnectFromBus(QStringLiteral("waiting server"));
  QString error;
  ASSERT_TRUE(server_->start(&error)) << error.toStdString();
}

// The server crashing at random moments, with a message shown or while the monitor is still
// being attached: after each return a message sent to the new server reaches the notch.
TEST_F(DesktopNotificationsTest, MessagesReachTheNotchAgainAfterEachOfManyServerCrashes) {
  ProviderTestContext context;
  auto owned = std::make_unique<DBusNotificationMonitor>(QDBusConnection::sessionBus());
  const DBusNotificationMonitor& monitor = *owned;
  BannerProvider banners(
      context, std::move(owned),
      std::make_shared<NotificationServerFocusSource>(QDBusConnection::sessionBus()),
      std::make_unique<DesktopEntryOpener>(), BannerApps::defaults());
  ASSERT_TRUE(context.settings().write(settings::experimentalCallNotices, true));
  ASSERT_TRUE(context.settings().write(settings::experimentalMessageNotices, true));
  banners.start();
  const BannerViewModel& view = *banners.viewModel();

  // A message is sent again every 50 ms until one shows: those sent before the monitor is
  // attached to the new server are missed, as they would be on a desktop.
  int round = 0;
  QElapsedTimer sinceSent;
  const auto messageShows = [&] {
    const QString body = QStringLiteral("round %1").arg(round);
    if (view.hasMessage() && view.body() == body) return true;
    if (!sinceSent.isValid() || sinceSent.elapsed() >= 50) {
      sendMessage(body);
      sinceSent.start();
    }
    return false;
  };
  ASSERT_TRUE(waitFor(messageShows));

  QElapsedTimer drill;
  drill.start();
  const RestartDrillReport report =
      runRestartDrill("notification server", {.kill = [] { return server_->kill(); },
                                              .restart =
                                                  [&] {
                                                    QString error;
                                                    ++round;
                                                    sinceSent.invalidate();
                                                    return server_->start(&error);
                                                  },
                                              .rightState = messageShows,
                                              .showsGone =
                                                  [&] {
                                                    return !view.hasMessage() &&
                                                           monitor.check().outcome ==
                                                               DiagnosticsLog::Outcome::degraded;
                                                  }});
  std::printf("notification server drill: %lld ms\n", static_cast<long long>(drill.elapsed()));
  EXPECT_EQ(report.failure, QString());
  EXPECT_EQ(report.restarts, 20);
  EXPECT_GE(entriesSaying(context.diagnostics(), "no notification server runs"), report.restarts);
  EXPECT_GE(entriesSaying(context.diagnostics(), "reading notification banners"),
            report.restarts + 1);
}

TEST(DesktopFocusTest, GnomesBannerSwitchIsDoNotDisturb) {
  // GNOME's settings in a key file under the session's private config folder, shared with the
  // real `gsettings` below; set before anything here touches GSettings.
  qputenv("GSETTINGS_BACKEND", "keyfile");
  if (!GSettingsFocusSource::available()) SKIP_OR_FAIL_ON_CI("gsettings-desktop-schemas missing");
  const auto set = [](const char* value) {
    run(QStringLiteral("gsettings"),
        {"set", "org.gnome.desktop.notifications", "show-banners", value});
  };
  set("true");
  GSettingsFocusSource source;
  source.start();
  EXPECT_EQ(source.focused(), false);
  EXPECT_EQ(source.check().outcome, DiagnosticsLog::Outcome::ok);
  set("false");
  EXPECT_TRUE(waitFor([&] { return source.focused() == true; }));
  set("true");
  EXPECT_TRUE(waitFor([&] { return source.focused() == false; }));
}

TEST(DesktopFocusTest, TheFocusCommandReachesARunningTindraWithinASecond) {
  SettingsStore settings(SettingsStore::defaultFile(), [] { return 0.0; });
  SettingsFileWatcher watcher(settings);
  ActivityCenter activities(settings);
  DiagnosticsLog diagnostics;
  FocusProvider focus({activities, settings, diagnostics},
                      std::make_shared<FakeFocusStatusSource>());
  focus.start();

  QElapsedTimer sent;
  sent.start();
  run(QStringLiteral(TINDRA_BINARY), {"focus", "on", "--name", "Deep Work", "--symbol", "book"});
  ASSERT_TRUE(waitFor([&] { return focus.shown().has_value(); }, 1000));
  std::printf("`tindra focus on` to the notice: %lld ms\n", static_cast<long long>(sent.elapsed()));
  EXPECT_EQ(focus.shown(), (FocusPresentation::Shown{"Deep Work", FocusSymbol::book}));
  EXPECT_EQ(activities.current(), ActivityKind::focus);

  run(QStringLiteral(TINDRA_BINARY), {"focus", "off"});
  EXPECT_TRUE(waitFor([&] { return !focus.shown().has_value(); }, 1000));
}

// One logind for the whole program, on the private system bus, with this session in it.
class DesktopLockTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    logind_ = std::make_unique<DBusMockService>(QDBusConnection::systemBus(),
                                                QStringLiteral("org.freedesktop.login1"),
                                                QStringList{"--template", "logind"});
    if (!startLogind()) {
      logind_.reset();
      return;
    }
    qputenv("XDG_SESSION_ID", "c7");
  }
  // logind with this process's session c7, as each start of the mock begins without it.
  static bool startLogind() {
    if (!logind_->start(&startError_)) return false;
    return logind_
        ->call(QStringLiteral("/org/freedesktop/login1"), "AddSession",
               {QStringLiteral("c7"), QStringLiteral("seat0"), 1000u, QStringLiteral("ana"), true})
        .isEmpty();
  }
  static void TearDownTestSuite() { logind_.reset(); }

  void SetUp() override {
    if (!logind_) SKIP_OR_FAIL_ON_CI("no mocked logind: " + startError_.toStdString());
  }

  static void session(const QString& method, const QVariantList& arguments = {}) {
    ASSERT_EQ(logind_->call(sessionPath, method, arguments, "org.freedesktop.login1.Session"),
              QString());
  }
  static void screenSaver(bool active) {
    run(QStringLiteral("dbus-send"),
        {"--session", "--type=signal", "/org/freedesktop/ScreenSaver",
         "org.freedesktop.ScreenSaver.ActiveChanged", active ? "boolean:true" : "boolean:false"});
  }

  static inline const QString sessionPath = QStringLiteral("/org/freedesktop/login1/session/c7");
  static inline std::unique_ptr<DBusMockService> logind_;
  static inline QString startError_;
};

TEST_F(DesktopLockTest, LockSignalsHintsAndTheScreenSaverReachThePresence) {
  LogindLockSource source(QDBusConnection::systemBus(), QDBusConnection::sessionBus());
  QSignalSpy changes(&source, &LockStateSource::changed);
  source.start();
  ASSERT_TRUE(waitFor([&] { return source.check().text.english().contains(sessionPath); }));
  syncSessionBus();
  using Event = LockScreenPresence::Event;
  session("Lock");
  ASSERT_TRUE(waitFor([&] { return changes.count() == 1; }));
  session("SetLockedHint", {true});  // the locker confirms: no second "locked"
  screenSaver(true);
  ASSERT_TRUE(waitFor([&] { return changes.count() == 2; }));
  screenSaver(false);
  ASSERT_TRUE(waitFor([&] { return changes.count() == 3; }));
  session("Unlock");
  ASSERT_TRUE(waitFor([&] { return changes.count() == 4; }));
  std::vector<Event> events;
  for (const QList<QVariant>& change : changes) events.push_back(change[0].value<Event>());
  EXPECT_EQ(events, (std::vector{Event::locked, Event::screensaverStarted,
                                 Event::screensaverStopped, Event::unlocked}));
  session("SetLockedHint", {false});
}

TEST_F(DesktopLockTest, AStopWhileLockedIsFoundAtTheNextStart) {
  ProviderTestContext context;
  ASSERT_TRUE(context.settings().write(settings::experimentalLockScreen, true));
  const std::string boot = LockSessionGuard::readBootID();
  ASSERT_EQ(boot.size(), 36u) << boot;  // a UUID
  const auto start = [&] {
    auto provider = std::make_unique<LockScreenProvider>(
        context,
        std::make_unique<LogindLockSource>(QDBusConnection::systemBus(),
                                           QDBusConnection::sessionBus()),
        LockSessionGuard(context.path().toStdString(), boot, "Debian"), [] { return 100.0; });
    provider->start();
    return provider;
  };
  auto tindra = start();
  ASSERT_TRUE(waitFor([&] {
    return tindra->viewModel() &&
           context.diagnostics().entries().back().text.english().contains("following");
  }));
  session("Lock");
  ASSERT_TRUE(waitFor([&] { return tindra->locked(); }));
  tindra.reset();  // killed while locked: the record keeps the open session

  tindra = start();
  EXPECT_FALSE(context.settings().read(settings::experimentalLockScreen));
  EXPECT_EQ(LockScreenNotice::fromSettingText(context.settings().read(settings::lockScreenNotice))
                ->reason,
            LockScreenNotice::Reason::stoppedWhileLocked);
  session("Unlock");
}

TEST_F(DesktopLockTest, LogindMissingAtStartOrLeavingIsSaidAndFollowedWhenItComes) {
  ASSERT_TRUE(logind_->stop());
  LogindLockSource source(QDBusConnection::systemBus(), QDBusConnection::sessionBus());
  QSignalSpy changes(&source, &LockStateSource::changed);
  source.start();
  ASSERT_TRUE(waitFor([&] { return source.check().text.english().contains("does not answer"); }));
  EXPECT_EQ(source.check().outcome, DiagnosticsLog::Outcome::degraded);

  ASSERT_TRUE(startLogind()) << startError_.toStdString();
  ASSERT_TRUE(waitFor([&] { return source.check().text.english().contains(sessionPath); }));
  ASSERT_TRUE(logind_->stop());
  ASSERT_TRUE(waitFor([&] { return source.check().text.english().contains("went away"); }));
  ASSERT_TRUE(startLogind()) << startError_.toStdString();
  ASSERT_TRUE(waitFor([&] { return source.check().text.english().contains(sessionPath); }));

  // The session's signals are heard from the new logind.
  session("Lock");
  ASSERT_TRUE(waitFor([&] { return changes.count() == 1; }));
  EXPECT_EQ(changes[0][0].value<LockScreenPresence::Event>(), LockScreenPresence::Event::locked);
  session("Unlock");
}

// logind crashing at random moments, each new one with the session locked when the last was
// unlocked and the other way round: the lock follows every new logind, and each crash is said.
TEST_F(DesktopLockTest, TheLockIsFollowedAgainAfterEachOfManyCrashesOfLogind) {
  ProviderTestContext context;
  ASSERT_TRUE(context.settings().write(settings::experimentalLockScreen, true));
  auto owned = std::make_unique<LogindLockSource>(QDBusConnection::systemBus(),
                                                  QDBusConnection::sessionBus());
  const LogindLockSource& source = *owned;
  LockScreenProvider provider(
      context, std::move(owned),
      LockSessionGuard(context.path().toStdString(), LockSessionGuard::readBootID(), "Debian"),
      [] { return 100.0; });
  provider.start();
  const auto following = [&] { return source.check().text.english().contains(sessionPath); };
  ASSERT_TRUE(waitFor(following));

  bool locked = false;
  QElapsedTimer drill;
  drill.start();
  const RestartDrillReport report = runRestartDrill(
      "logind", {.kill = [] { return logind_->kill(); },
                 .restart =
                     [&] {
                       if (!startLogind()) return false;
                       locked = !locked;
                       session("SetLockedHint", {locked});
                       return !::testing::Test::HasFatalFailure();
                     },
                 .rightState = [&] { return following() && provider.locked() == locked; },
                 .showsGone = [&] { return source.check().text.english().contains("went away"); }});
  std::printf("logind drill: %lld ms\n", static_cast<long long>(drill.elapsed()));
  EXPECT_EQ(report.failure, QString());
  EXPECT_EQ(report.restarts, 20);
  EXPECT_EQ(entriesSaying(context.diagnostics(), "logind went away"), report.restarts);
  EXPECT_GE(entriesSaying(context.diagnostics(), "following the screen lock"), report.restarts + 1);

  // The last logind's own signals are heard, not only its hint.
  session(locked ? "Unlock" : "Lock");
  EXPECT_TRUE(waitFor([&] { return provider.locked() != locked; }));
  session("SetLockedHint", {false});
}

}  // namespace
}  // namespace tindra
