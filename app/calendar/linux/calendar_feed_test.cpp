#include "calendar/linux/calendar_feed.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace tindra {
namespace {

constexpr double day = 86400;
constexpr double monday = 1792972800;  // 2026-10-26 00:00 UTC

std::string calendarOf(const std::string& uid, const std::string& start) {
  return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Brenvik//test//EN\r\nBEGIN:VEVENT\r\nUID:" +
         uid + "\r\nSUMMARY:" + uid + "\r\nDTSTART:" + start +
         "\r\nDURATION:PT30M\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
}

ICalendarReadOptions windowFrom(double start) {
  ICalendarReadOptions options;
  options.windowStart = start;
  options.windowEnd = start + 7 * day;
  return options;
}

CalendarSource source() {
  CalendarSource source;
  source.id = QStringLiteral("test");
  source.name = QStringLiteral("Test");
  return source;
}

// A feed handed its documents by the test, keeping their text as a file's or a fetched
// calendar's feed does, or holding it itself as Evolution's does (`holds`).
class HandedFeed final : public CalendarFeed {
 public:
  explicit HandedFeed(bool holds) : CalendarFeed(source(), windowFrom(monday)), holds_(holds) {}

  void start() override {}
  void hand(std::vector<std::string> documents) {
    held_ = documents;
    accept([documents] { return std::optional(documents); });
  }
  std::vector<std::string> held_;
  int askedAgain = 0;

 protected:
  bool holdsDocuments() const override { return holds_; }
  Gather documentsAgain() override {
    ++askedAgain;
    return [held = held_] { return std::optional(held); };
  }

 private:
  bool holds_;
};

std::vector<std::string> titles(const CalendarFeed& feed) {
  std::vector<std::string> found;
  for (const CalendarEventInfo& event : feed.contents().events) found.push_back(event.title);
  return found;
}

bool waitForTitles(const CalendarFeed& feed, const std::vector<std::string>& expected) {
  return QTest::qWaitFor([&] { return titles(feed) == expected; }, 5000);
}

const std::vector<std::string> twoWeeks{calendarOf("this-week", "20261027T090000Z"),
                                        calendarOf("next-week", "20261103T090000Z")};

TEST(CalendarFeed, ANewWindowReadsTheLastTextAgainWhereTheFeedDoesNotHoldIt) {
  HandedFeed feed(false);
  feed.hand(twoWeeks);
  ASSERT_TRUE(waitForTitles(feed, {"this-week"}));
  feed.held_.clear();  // not asked for: the feed keeps what it read
  feed.setReadOptions(windowFrom(monday + 7 * day));
  EXPECT_TRUE(waitForTitles(feed, {"next-week"}));
  EXPECT_EQ(feed.askedAgain, 0);
}

TEST(CalendarFeed, ANewWindowReadsWhatTheFeedHoldsNowNotAKeptCopy) {
  HandedFeed feed(true);
  feed.hand(twoWeeks);
  ASSERT_TRUE(waitForTitles(feed, {"this-week"}));
  // What the feed holds changed since its last reading (Evolution's view was renewed): the new
  // window is read from that.
  feed.held_ = {calendarOf("moved", "20261104T090000Z")};
  feed.setReadOptions(windowFrom(monday + 7 * day));
  EXPECT_TRUE(waitForTitles(feed, {"moved"}));
  EXPECT_EQ(feed.askedAgain, 1);

  // Options that change nothing but the owner addresses read it again all the same.
  ICalendarReadOptions owners = windowFrom(monday + 7 * day);
  owners.ownerAddresses = {"ana@example.org"};
  feed.setReadOptions(owners);
  EXPECT_EQ(feed.askedAgain, 2);
  EXPECT_TRUE(waitForTitles(feed, {"moved"}));
}

TEST(CalendarFeed, HeldTextThatNoLongerReadsLeavesTheLastEventsForANewWindow) {
  HandedFeed feed(true);
  feed.hand(twoWeeks);
  ASSERT_TRUE(waitForTitles(feed, {"this-week"}));
  feed.held_ = {"BEGIN:VCALENDAR\r\nnot a calendar", "neither"};
  feed.setReadOptions(windowFrom(monday + 7 * day));
  QSignalSpy changed(&feed, &CalendarFeed::changed);
  // Nothing better to show: the events stay, and nothing is said to have changed.
  EXPECT_FALSE(changed.wait(1000));
  EXPECT_EQ(titles(feed), std::vector<std::string>{"this-week"});

  // A held calendar that is empty now is read as such, not taken for a broken one.
  feed.held_ = {};
  feed.setReadOptions(windowFrom(monday));
  EXPECT_TRUE(waitForTitles(feed, {}));
}

}  // namespace
}  // namespace tindra
