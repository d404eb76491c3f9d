#include "calendar/linux/icalendar_backend.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <latch>

#include "calendar/linux/remote_calendar_feed.h"
#include "testing/loopback_http_server.h"

namespace tindra {
namespace {

constexpr double monday = 1792972800;  // 2026-10-26 00:00 UTC

QByteArray feed(const QByteArray& events, const QByteArray& name = "Team") {
  return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nX-WR-CALNAME:" + name + "\r\n" + events +
         "END:VCALENDAR\r\n";
}

QByteArray event(const QByteArray& uid, const QByteArray& hour = "09") {
  return "BEGIN:VEVENT\r\nUID:" + uid + "\r\nSUMMARY:" + uid + "\r\nDTSTART:20261026T" + hour +
         "0000Z\r\nDURATION:PT30M\r\nEND:VEVENT\r\n";
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(bytes);
}

// As editors save: a new file renamed over the old one.
void replace(const QString& path, const QByteArray& bytes) {
  write(path + ".new", bytes);
  ASSERT_TRUE(QFile::remove(path));
  ASSERT_TRUE(QFile::rename(path + ".new", path));
}

// Waits until every reading asked for so far is done: the reader answers in order.
void waitForReadings() {
  const std::shared_ptr<SerialWorker> reader = CalendarFeed::reader();
  QObject marker;
  bool answered = false;
  reader->post(
      &marker, [] { return true; }, [&](bool) { answered = true; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return answered; }, 10000));
}

ICalendarReadOptions aroundMonday() {
  ICalendarReadOptions options;
  options.windowStart = monday - 86400;
  options.windowEnd = monday + 7 * 86400;
  options.timeZone = "UTC";
  return options;
}

class ICalendarBackendTest : public ::testing::Test {
 protected:
  ICalendarBackend::Places places() const {
    return {dir_.filePath("config/calendars.json").toStdString(),
            dir_.filePath("kept"),
            {dir_.filePath("evolution.ics")},
            std::nullopt};
  }
  std::unique_ptr<ICalendarBackend> started() {
    auto backend = std::make_unique<ICalendarBackend>(places(), [] { return monday; });
    backend->start();
    backend->setWindow(monday - 86400, monday + 7 * 86400);
    return backend;
  }
  static std::size_t events(const ICalendarBackend& backend, std::size_t index) {
    return backend.calendars().at(index).events.size();
  }

  QTemporaryDir dir_;
};

TEST_F(ICalendarBackendTest, FollowsFilesAndFoldersAndKeepsTheLastGoodCopyOfABadSave) {
  write(dir_.filePath("evolution.ics"), feed(event("standup")));
  auto backend = started();
  waitForReadings();
  ASSERT_EQ(backend->calendars().size(), 1U) << "a calendar found on the machine is read";
  const CalendarSource found = backend->calendars()[0].source;
  EXPECT_EQ(found.name, "Team");
  EXPECT_FALSE(found.removable);
  EXPECT_EQ(events(*backend, 0), 1U);
  EXPECT_TRUE(backend->calendars()[0].events[0].id.starts_with(found.id.toStdString() + ":"));

  replace(dir_.filePath("evolution.ics"), feed(event("standup") + event("review", "11")));
  EXPECT_TRUE(QTest::qWaitFor([&] { return events(*backend, 0) == 2; }, 5000));
  replace(dir_.filePath("evolution.ics"), "<html>Sign in</html>");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return backend->calendars()[0].source.state.outcome != DiagnosticsLog::Outcome::ok; },
      5000));
  EXPECT_EQ(events(*backend, 0), 2U) << "the last good copy stays";
  EXPECT_TRUE(backend->calendars()[0].source.state.text.english().contains("not iCalendar"));
  EXPECT_NE(backend->check().outcome, DiagnosticsLog::Outcome::ok);

  // A folder of one event per file, one of them broken.
  QDir(dir_.path()).mkdir("vdir");
  write(dir_.filePath("vdir/a.ics"), feed(event("a")));
  write(dir_.filePath("vdir/b.ics"), feed(event("b")));
  write(dir_.filePath("vdir/c.ics"), "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\n");
  EXPECT_EQ(backend->add(dir_.filePath("vdir")), std::nullopt);
  waitForReadings();
  ASSERT_EQ(backend->calendars().size(), 2U);
  EXPECT_EQ(events(*backend, 1), 2U);
  EXPECT_TRUE(backend->calendars()[1].source.state.text.english().contains("1 document"));
  EXPECT_TRUE(backend->calendars()[1].source.removable);
}

// Without Evolution Data Server, Evolution's own file is read; the colour of a calendar whose
// documents name none is the palette's, kept when the window moves.
TEST_F(ICalendarBackendTest, ReadsEvolutionsFileWhereEvolutionDataServerDoesNotAnswer) {
  write(dir_.filePath("evolution.ics"), feed(event("standup")));
  ICalendarBackend::Places nowhere = places();
  nowhere.evolution = QDBusConnection(QStringLiteral("tindra-no-such-bus"));
  ICalendarBackend backend(nowhere, [] { return monday; });
  EXPECT_TRUE(backend.calendars().empty()) << "not known yet whether Evolution Data Server has it";
  backend.start();
  backend.setWindow(monday - 86400, monday + 7 * 86400);
  ASSERT_TRUE(QTest::qWaitFor([&] { return backend.calendars().size() == 1U; }, 5000));
  waitForReadings();
  EXPECT_EQ(events(backend, 0), 1U);
  EXPECT_TRUE(backend.check().text.english().contains("Evolution Data Server is not running"))
      << backend.check().text.english().toStdString();
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::ok);
  const auto color = backend.calendars()[0].source.color;
  backend.setWindow(monday, monday + 86400);
  waitForReadings();
  EXPECT_EQ(backend.calendars()[0].source.color, color);
}

TEST_F(ICalendarBackendTest, TheUsersListIsKeptRefusesWhatCannotBeReadAndIsSetAsideWhenBroken) {
  auto backend = started();
  EXPECT_NE(backend->check().outcome, DiagnosticsLog::Outcome::ok) << "no calendars yet";
  EXPECT_TRUE(backend->add("http://calendar.example.org/team.ics"))
      << "plain http is refused: a calendar is private";
  EXPECT_TRUE(backend->add(dir_.filePath("missing.ics")));
  write(dir_.filePath("mine.ics"), feed(event("mine")));
  EXPECT_EQ(backend->add(dir_.filePath("mine.ics")), std::nullopt);
  EXPECT_TRUE(backend->add(dir_.filePath("mine.ics"))) << "already listed";
  backend->setOwnerAddresses({"me@example.org"});

  auto again = started();
  ASSERT_EQ(again->calendars().size(), 1U);
  EXPECT_EQ(again->ownerAddresses(), QStringList{"me@example.org"});
  again->remove(again->calendars()[0].source.id);
  EXPECT_TRUE(again->calendars().empty());

  write(dir_.filePath("config/calendars.json"), "{\"calendars\": [");
  auto broken = started();
  EXPECT_TRUE(QFile::exists(dir_.filePath("config/calendars.json.unreadable")));
  EXPECT_TRUE(broken->check().text.english().contains("set aside"));
}

TEST_F(ICalendarBackendTest, OnlyTheNewestReadingIsReadAndAGoneBackendHearsNothing) {
  write(dir_.filePath("evolution.ics"), feed(event("standup")));
  // The reader is kept busy until the readings are asked for.
  const std::shared_ptr<SerialWorker> reader = CalendarFeed::reader();
  QObject holder;
  std::latch busy{1};
  reader->post(
      &holder,
      [&busy] {
        busy.wait();
        return 0;
      },
      [](int) {});

  auto backend = started();  // read at its start, without a window, then again with the week
  QSignalSpy changed(backend.get(), &CalendarBackend::changed);
  started().reset();  // gone before its reading is done
  busy.count_down();
  waitForReadings();
  EXPECT_EQ(changed.count(), 1) << "the reading without a window was left out";
  EXPECT_EQ(events(*backend, 0), 1U);
}

TEST(RemoteCalendarFeedTest, FetchesConditionallyKeepsTheLastGoodCopyAndBacksOff) {
  QTemporaryDir kept;
  LoopbackHTTPServer server;
  server.setResponse("/team.ics", {200,
                                   {{"ETag", "\"v1\""},
                                    {"Last-Modified", "Mon, 26 Oct 2026 08:00:00 GMT"},
                                    {"Content-Type", "text/calendar"}},
                                   feed(event("standup"))});
  QNetworkAccessManager network;
  double now = monday;
  const CalendarSource source{"remote", "remote", server.url("/team.ics").toString(), {}, {}, true};
  auto remote = std::make_unique<RemoteCalendarFeed>(source, aroundMonday(), network, kept.path(),
                                                     [&] { return now; });
  remote->start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return remote->contents().events.size() == 1; }, 5000));
  EXPECT_TRUE(QFile::exists(kept.filePath("remote.ics")));
  EXPECT_NEAR(remote->secondsToNextFetch(), RemoteCalendarFeed::defaultRefresh, 2);
  EXPECT_TRUE(server.requests()[0].headers["user-agent"].startsWith("Tindra/"));

  const auto fetchAnswering = [&](LoopbackHTTPServer::Response response) {
    server.setResponse("/team.ics", std::move(response));
    const auto before = server.requests().size();
    QSignalSpy changed(remote.get(), &CalendarFeed::changed);
    remote->fetch();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !changed.isEmpty(); }, 5000));
    EXPECT_EQ(server.requests().size(), before + 1);
    return remote->contents().source.state;
  };
  EXPECT_EQ(fetchAnswering({304, {}, {}}).outcome, DiagnosticsLog::Outcome::ok);
  EXPECT_EQ(server.requests().last().headers["if-none-match"], "\"v1\"");
  EXPECT_EQ(server.requests().last().headers["if-modified-since"], "Mon, 26 Oct 2026 08:00:00 GMT");

  EXPECT_TRUE(fetchAnswering({500, {}, "oops"}).text.english().contains("HTTP 500"));
  EXPECT_NEAR(remote->secondsToNextFetch(), RemoteCalendarFeed::firstRetry, 2);
  EXPECT_TRUE(fetchAnswering({404, {}, {}}).text.english().contains("HTTP 404"));
  EXPECT_NEAR(remote->secondsToNextFetch(), 2 * RemoteCalendarFeed::firstRetry, 2);
  EXPECT_TRUE(
      fetchAnswering({200, {}, "<html>Sign in</html>"}).text.english().contains("not iCalendar"));
  const QByteArray whole = feed(event("standup") + event("review", "11"));
  EXPECT_TRUE(
      fetchAnswering({200, {}, whole.left(whole.size() / 2)}).text.english().contains("cut short"));
  EXPECT_EQ(remote->contents().events.size(), 1U) << "every failure kept the last good copy";

  EXPECT_EQ(fetchAnswering({200, {{"ETag", "\"v2\""}}, whole}).outcome,
            DiagnosticsLog::Outcome::ok);
  EXPECT_EQ(remote->contents().events.size(), 2U);

  // A restart within the refresh interval shows the kept copy and asks nothing.
  now += 600;
  const auto asked = server.requests().size();
  remote = std::make_unique<RemoteCalendarFeed>(source, aroundMonday(), network, kept.path(),
                                                [&] { return now; });
  remote->start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return remote->contents().events.size() == 2; }, 5000));
  QTest::qWait(100);
  EXPECT_EQ(server.requests().size(), asked);
  EXPECT_NEAR(remote->secondsToNextFetch(), RemoteCalendarFeed::defaultRefresh - 600, 2);
}

TEST(RemoteCalendarFeedTest, FetchesOnlyOverHTTPSOrOnThisMachine) {
  EXPECT_EQ(RemoteCalendarFeed::fetchedURL("webcal://example.org/team.ics"),
            QUrl("https://example.org/team.ics"));
  EXPECT_EQ(RemoteCalendarFeed::fetchedURL("https://example.org/a.ics"),
            QUrl("https://example.org/a.ics"));
  EXPECT_EQ(RemoteCalendarFeed::fetchedURL("http://example.org/a.ics"), std::nullopt);
  EXPECT_EQ(RemoteCalendarFeed::fetchedURL("ftp://example.org/a.ics"), std::nullopt);
  EXPECT_TRUE(RemoteCalendarFeed::fetchedURL("http://127.0.0.1:8080/a.ics"));
}

}  // namespace
}  // namespace tindra
