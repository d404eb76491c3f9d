// Runs in: private-session --offscreen
#include "calendar/linux/eds_calendar_feed.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>
#include <iostream>

#include "calendar/linux/icalendar_backend.h"
#include "testing/evolution_data_server.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

constexpr double monday = 1792972800;  // 2026-10-26 00:00 UTC; Oslo is at UTC+1 that week
constexpr double hour = 3600;
constexpr double day = 86400;

QString event(const QString& uid, const QString& start, const QString& extra = {}) {
  return QStringLiteral(
             "BEGIN:VEVENT\r\nUID:%1\r\nSUMMARY:%1\r\n%2\r\nDURATION:PT30M\r\n%3"
             "END:VEVENT\r\n")
      .arg(uid, start, extra);
}

// Evolution Data Server with an account ("Nextcloud") holding a calendar, a task list of the
// built-in local account, and Tindra's calendar backend reading them, all started once.
class EdsCalendarFeedTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    eds_ = std::make_unique<EvolutionDataServer>(QDBusConnection::sessionBus());
    if (!eds_->start(&startError_)) {
      eds_.reset();
      return;
    }
    do_({{"do", "source"}, {"uid", "nextcloud"}, {"name", "Nextcloud"}, {"kind", "account"}});
    do_({{"do", "source"},
         {"uid", "work"},
         {"name", "Work"},
         {"parent", "nextcloud"},
         {"color", "#ff8000"}});
    do_({{"do", "source"},
         {"uid", "chores"},
         {"name", "Chores"},
         {"parent", "local-stub"},
         {"kind", "tasks"}});
    dir_ = std::make_unique<QTemporaryDir>();
    ICalendarBackend::Places places{dir_->filePath("calendars.json").toStdString(),
                                    dir_->filePath("kept"),
                                    {eds_->dataHome() + "/evolution/calendar/system/calendar.ics"},
                                    QDBusConnection::sessionBus()};
    backend_ = std::make_unique<ICalendarBackend>(places, [] { return monday; });
    backend_->start();
    backend_->setWindow(monday - day, monday + 7 * day);
  }
  static void TearDownTestSuite() {
    backend_.reset();
    eds_.reset();
    dir_.reset();
  }
  void SetUp() override {
    if (!eds_) SKIP_OR_FAIL_ON_CI("no Evolution Data Server: " + startError_.toStdString());
  }

  static QJsonObject do_(const QJsonObject& request) {
    QJsonObject answer = eds_->command(request);
    EXPECT_TRUE(answer.value("ok").toBool()) << request.value("do").toString().toStdString() << ": "
                                             << answer.value("error").toString().toStdString();
    return answer;
  }
  static void add(const QString& calendar, const QString& ics) {
    do_({{"do", "add"}, {"calendar", calendar}, {"ics", ics}});
  }
  static void modify(const QString& calendar, const QString& ics, const QString& mod = "all") {
    do_({{"do", "modify"}, {"calendar", calendar}, {"ics", ics}, {"mod", mod}});
  }
  static void remove(const QString& calendar, const QString& uid, const QString& rid = {},
                     const QString& mod = "all") {
    do_({{"do", "delete"}, {"calendar", calendar}, {"uid", uid}, {"rid", rid}, {"mod", mod}});
  }

  static std::optional<CalendarContents> calendar(const QString& id) {
    for (CalendarContents& contents : backend_->calendars()) {
      if (contents.source.id == id) return std::move(contents);
    }
    return std::nullopt;
  }
  static std::vector<CalendarEventInfo> events(const QString& id, const std::string& uid) {
    std::vector<CalendarEventInfo> found;
    const std::string prefix = id.toStdString() + ":" + uid;
    if (const auto contents = calendar(id)) {
      for (const CalendarEventInfo& info : contents->events) {
        if (info.id == prefix || info.id.starts_with(prefix + "@")) found.push_back(info);
      }
    }
    std::ranges::sort(found, {}, &CalendarEventInfo::start);
    return found;
  }
  static bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 15000);
  }
  static bool listed(const QString& id) { return calendar(id).has_value(); }

  static inline std::unique_ptr<EvolutionDataServer> eds_;
  static inline QString startError_;
  static inline std::unique_ptr<QTemporaryDir> dir_;
  static inline std::unique_ptr<ICalendarBackend> backend_;
};

TEST_F(EdsCalendarFeedTest, ListsEnabledCalendarsByAccountAndFollowsSwitches) {
  ASSERT_TRUE(waitFor([] { return listed("eds:work") && listed("eds:system-calendar"); }));
  const CalendarSource work = calendar("eds:work")->source;
  EXPECT_EQ(work.name, "Work (Nextcloud)");
  ASSERT_TRUE(work.color);
  EXPECT_NEAR(work.color->green, 128 / 255.0, 1e-3);
  EXPECT_FALSE(work.removable);
  EXPECT_EQ(calendar("eds:system-calendar")->source.name, "Personal (On This Computer)");
  EXPECT_TRUE(listed("eds:chores"));
  // The built-in calendar's file is Evolution Data Server's to read, not a second calendar.
  for (const CalendarContents& contents : backend_->calendars()) {
    EXPECT_TRUE(contents.source.id.startsWith("eds:")) << contents.source.id.toStdString();
  }
  EXPECT_TRUE(backend_->check().text.english().contains("1 from Nextcloud"))
      << backend_->check().text.english().toStdString();

  // An account switched off takes its calendars with it; on again, they come back.
  do_({{"do", "enable"}, {"uid", "nextcloud"}, {"enabled", false}});
  EXPECT_TRUE(waitFor([] { return !listed("eds:work"); }));
  do_({{"do", "enable"}, {"uid", "nextcloud"}, {"enabled", true}});
  EXPECT_TRUE(waitFor([] { return listed("eds:work"); }));
  do_({{"do", "source"}, {"uid", "late"}, {"name", "Late"}, {"parent", "nextcloud"}});
  EXPECT_TRUE(waitFor([] { return listed("eds:late"); }));
  do_({{"do", "forget"}, {"uid", "late"}});
  EXPECT_TRUE(waitFor([] { return !listed("eds:late"); }));
}

TEST_F(EdsCalendarFeedTest, FollowsEventsAddedMovedCancelledAndDeleted) {
  ASSERT_TRUE(waitFor([] { return listed("eds:work"); }));
  QElapsedTimer clock;
  clock.start();
  add("work", event("standup", "DTSTART;TZID=Europe/Oslo:20261026T090000"));
  ASSERT_TRUE(waitFor([] { return events("eds:work", "standup").size() == 1; }));
  std::cout << "[ figure ] added in Evolution Data Server to read by the backend: "
            << clock.elapsed() << " ms\n";
  CalendarEventInfo standup = events("eds:work", "standup").front();
  EXPECT_EQ(standup.start, monday + 8 * hour);  // 09:00 in Oslo
  EXPECT_EQ(standup.end, monday + 8.5 * hour);
  EXPECT_EQ(standup.title, "standup");
  ASSERT_TRUE(standup.calendarColor);
  EXPECT_NEAR(standup.calendarColor->red, 1.0, 1e-3);

  modify("work", event("standup", "DTSTART;TZID=Europe/Oslo:20261027T100000"));
  ASSERT_TRUE(waitFor([] {
    const auto found = events("eds:work", "standup");
    return found.size() == 1 && found.front().start == monday + day + 9 * hour;
  }));
  modify("work",
         event("standup", "DTSTART;TZID=Europe/Oslo:20261027T100000", "STATUS:CANCELLED\r\n"));
  ASSERT_TRUE(waitFor([] {
    const auto found = events("eds:work", "standup");
    return found.size() == 1 && found.front().isDeclinedOrCancelled;
  }));
  // Moved out of the window, then back into it.
  modify("work", event("standup", "DTSTART:20261201T090000Z"));
  ASSERT_TRUE(waitFor([] { return events("eds:work", "standup").empty(); }));
  modify("work", event("standup", "DTSTART:20261028T090000Z"));
  ASSERT_TRUE(waitFor([] { return events("eds:work", "standup").size() == 1; }));
  remove("work", "standup");
  EXPECT_TRUE(waitFor([] { return events("eds:work", "standup").empty(); }));
}

TEST_F(EdsCalendarFeedTest, ExpandsARecurringMeetingWithItsMovedAndDeletedOccurrences) {
  ASSERT_TRUE(waitFor([] { return listed("eds:work"); }));
  add("work", event("daily", "DTSTART:20261026T120000Z", "RRULE:FREQ=DAILY;COUNT=5\r\n"));
  ASSERT_TRUE(waitFor([] { return events("eds:work", "daily").size() == 5; }));
  modify("work", event("daily", "DTSTART:20261027T140000Z", "RECURRENCE-ID:20261027T120000Z\r\n"),
         "this");
  ASSERT_TRUE(waitFor([] {
    const auto found = events("eds:work", "daily");
    return found.size() == 5 && found[1].start == monday + day + 14 * hour;
  }));
  // The moved occurrence deleted: the series loses that day, the others stay.
  remove("work", "daily", "20261027T120000Z", "this");
  ASSERT_TRUE(waitFor([] {
    const auto found = events("eds:work", "daily");
    return found.size() == 4 && found[1].start == monday + 2 * day + 12 * hour;
  }));
  remove("work", "daily");
  EXPECT_TRUE(waitFor([] { return events("eds:work", "daily").empty(); }));

  do_({{"do", "add"},
       {"calendar", "chores"},
       {"ics",
        "BEGIN:VTODO\r\nUID:bins\r\nSUMMARY:Bins\r\nDUE:20261027T180000Z\r\nEND:VTODO\r\n"}});
  ASSERT_TRUE(waitFor([] {
    const auto chores = calendar("eds:chores");
    return chores && chores->reminders.size() == 1;
  }));
  EXPECT_EQ(calendar("eds:chores")->reminders.front().due, monday + day + 18 * hour);
}

TEST_F(EdsCalendarFeedTest, ANewWindowAsksForItsEvents) {
  ASSERT_TRUE(waitFor([] { return listed("eds:work"); }));
  add("work", event("december", "DTSTART:20261201T090000Z"));
  add("work", event("october", "DTSTART:20261026T150000Z"));
  ASSERT_TRUE(waitFor([] { return events("eds:work", "october").size() == 1; }));
  EXPECT_TRUE(events("eds:work", "december").empty());
  backend_->setWindow(monday + 30 * day, monday + 40 * day);
  EXPECT_TRUE(waitFor([] {
    return events("eds:work", "december").size() == 1 && events("eds:work", "october").empty();
  }));
  backend_->setWindow(monday - day, monday + 7 * day);
  EXPECT_TRUE(waitFor([] { return events("eds:work", "october").size() == 1; }));
}

// A calendar Tindra lists before the factory has heard of it: refused at first, then read.
TEST_F(EdsCalendarFeedTest, AsksAgainForACalendarTheFactoryDidNotKnowYet) {
  ICalendarReadOptions options;
  options.windowStart = monday - day;
  options.windowEnd = monday + 7 * day;
  options.idPrefix = "eds:early";
  EdsCalendar early;
  early.uid = "early";
  early.name = "Early";
  EdsCalendarFeed feed(early, options, QDBusConnection::sessionBus());
  feed.start();
  ASSERT_TRUE(waitFor([&] {
    return feed.contents().source.state.text.english().contains("cannot open the calendar");
  })) << feed.contents().source.state.text.english().toStdString();
  do_({{"do", "source"}, {"uid", "early"}, {"name", "Early"}, {"parent", "nextcloud"}});
  add("early", event("first", "DTSTART:20261027T090000Z"));
  EXPECT_TRUE(waitFor([&] {
    return feed.contents().source.state.outcome == DiagnosticsLog::Outcome::ok &&
           feed.contents().events.size() == 1;
  })) << feed.contents().source.state.text.english().toStdString();
  do_({{"do", "forget"}, {"uid", "early"}});
}

TEST_F(EdsCalendarFeedTest, ComesBackAfterTheRegistryOrTheFactoryIsKilled) {
  ASSERT_TRUE(waitFor([] { return listed("eds:work"); }));
  add("work", event("survivor", "DTSTART:20261029T090000Z"));
  ASSERT_TRUE(waitFor([] { return events("eds:work", "survivor").size() == 1; }));
  ASSERT_TRUE(eds_->killRegistry());
  QString error;
  ASSERT_TRUE(eds_->startRegistry(&error)) << error.toStdString();
  do_({{"do", "reconnect"}});
  // Followed again: a calendar added now is listed, and the others kept their events.
  do_({{"do", "source"}, {"uid", "after"}, {"name", "After"}, {"parent", "nextcloud"}});
  EXPECT_TRUE(waitFor([] { return listed("eds:after"); }));
  EXPECT_EQ(events("eds:work", "survivor").size(), 1u);
  EXPECT_TRUE(waitFor([] { return backend_->check().outcome == DiagnosticsLog::Outcome::ok; }))
      << backend_->check().text.english().toStdString();
  add("work", event("later", "DTSTART:20261030T090000Z"));
  EXPECT_TRUE(waitFor([] { return events("eds:work", "later").size() == 1; }));

  // The factory crashing: the events stay, and it is started again and read anew.
  ASSERT_TRUE(eds_->killFactory());
  EXPECT_EQ(events("eds:work", "later").size(), 1u);
  EXPECT_TRUE(waitFor([] {
    const auto work = calendar("eds:work");
    return work && work->source.state.outcome == DiagnosticsLog::Outcome::ok &&
           backend_->check().outcome == DiagnosticsLog::Outcome::ok;
  }));
  do_({{"do", "reconnect"}});
  remove("work", "later");
  EXPECT_TRUE(waitFor([] { return events("eds:work", "later").empty(); }));
}

// Evolution Data Server crashing as a whole, again and again: each time it is back, an event
// added since shows, which only a calendar read anew can know of. The client adds it while the
// feed's new view starts, which is when Evolution Data Server holds changes back.
TEST_F(EdsCalendarFeedTest, FollowsEvolutionDataServerBackAfterEveryCrash) {
  ASSERT_TRUE(waitFor([] { return listed("eds:work"); }));
  add("work", event("before", "DTSTART:20261028T090000Z"));
  ASSERT_TRUE(waitFor([] { return events("eds:work", "before").size() == 1; }));
  QStringList checks;
  QObject::connect(backend_.get(), &CalendarBackend::checkChanged, backend_.get(),
                   [&] { checks << backend_->check().text.english(); });

  int round = 0;
  const auto latest = [&] { return "round" + std::to_string(round); };
  RestartDrillSteps steps;
  steps.kill = [] { return eds_->killFactory() && eds_->killRegistry(); };
  steps.showsGone = [] {
    const auto work = calendar("eds:work");
    return work && work->source.state.outcome != DiagnosticsLog::Outcome::ok;
  };
  steps.restart = [&] {
    QString error;
    if (!eds_->startThroughBus(&error)) {
      ADD_FAILURE() << error.toStdString();
      return false;
    }
    ++round;
    // The client library may still hold the dead factory's name: it is asked again, anew.
    QJsonObject added;
    for (int attempt = 0; attempt < 3 && !added.value("ok").toBool(); ++attempt) {
      eds_->command({{"do", "reconnect"}});
      added = eds_->command(
          {{"do", "add"},
           {"calendar", "work"},
           {"ics", event(QString::fromStdString(latest()), "DTSTART:20261029T090000Z")}});
    }
    EXPECT_TRUE(added.value("ok").toBool()) << added.value("error").toString().toStdString();
    return added.value("ok").toBool();
  };
  steps.rightState = [&] {
    const auto work = calendar("eds:work");
    return work && work->source.state.outcome == DiagnosticsLog::Outcome::ok &&
           backend_->check().outcome == DiagnosticsLog::Outcome::ok &&
           events("eds:work", latest()).size() == 1 && events("eds:work", "before").size() == 1;
  };
  const RestartDrillReport report = runRestartDrill("Evolution Data Server", steps);
  EXPECT_EQ(report.failure, QString())
      << report.failure.toStdString() << "; " << backend_->check().text.english().toStdString()
      << "; " << events("eds:work", latest()).size() << " of the last event";
  EXPECT_EQ(report.restarts, 20);
  QObject::disconnect(backend_.get(), &CalendarBackend::checkChanged, backend_.get(), nullptr);

  // What Diagnostics shows of the calendar told of each crash, and of the return.
  EXPECT_GE(checks.filter("went away").size(), 20) << checks.join('\n').toStdString();
  ASSERT_FALSE(checks.isEmpty());
  EXPECT_FALSE(checks.last().contains("went away")) << checks.last().toStdString();
}

TEST(EdsCalendarFeedTexts, ReadsKeysZonesAndQueriesFromComponents) {
  // Folded lines, parameters before the value, a quoted zone with a colon-free name.
  EXPECT_EQ(EdsCalendarFeed::keyOf("BEGIN:VEVENT\r\nUID:abc\r\n def\r\nEND:VEVENT\r\n"), "abcdef");
  EXPECT_EQ(EdsCalendarFeed::keyOf("BEGIN:VEVENT\r\nUID:a\r\nRECURRENCE-ID;TZID=\"Europe/Oslo\":"
                                   "20261027T120000\r\nEND:VEVENT\r\n"),
            "a\n20261027T120000");
  EXPECT_EQ(EdsCalendarFeed::keyOf("BEGIN:VEVENT\r\nUIDX:a\r\nEND:VEVENT\r\n"), "");
  EXPECT_EQ(EdsCalendarFeed::zonesNamed("DTSTART;TZID=\"W. Europe Standard Time\":20261026T09"
                                        "0000\r\nDTEND;VALUE=DATE-TIME;TZID=Europe/Oslo:2026102"
                                        "6T100000\r\nEXDATE;TZID=Europe/Oslo:20261027T090000\r\n"),
            (QStringList{"W. Europe Standard Time", "Europe/Oslo"}));
  EXPECT_EQ(
      EdsCalendarFeed::query(EdsSource::Kind::events, monday, monday + day),
      R"((occur-in-time-range? (make-time "20261026T000000Z") (make-time "20261027T000000Z")))");
}

}  // namespace
}  // namespace tindra
