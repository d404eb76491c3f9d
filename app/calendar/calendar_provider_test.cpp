#include "calendar/calendar_provider.h"

#include <gtest/gtest.h>

#include <QTest>

#include "calendar/fake_calendar_backend.h"
#include "calendar/upcoming_event_sound_log.h"
#include "settings/settings_keys.h"
#include "testing/manual_one_shot_scheduler.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
#include "testing/recorded_sounds.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

// Answers every question with the same trip, at once.
struct FixedTravelTime final : TravelTimeEstimator {
  bool available() const override { return true; }
  QString unavailableReason() const override { return {}; }
  void estimate(std::optional<CalendarEventInfo::Coordinate>, const QString& destination,
                TravelTransport, Answer answer) override {
    asked << destination;
    answer(20 * 60);
  }
  QStringList asked;
};

// 10:00 on a Monday, local time, so the fake day (breakfast at 8, review at 10:08, lunch at
// 12:30) stays inside one day whatever zone the tests run in.
double tenOClock() {
  return static_cast<double>(QDateTime(QDate(2026, 10, 26), QTime(10, 0)).toMSecsSinceEpoch()) /
         1000.0;
}

class CalendarProviderTest : public ::testing::Test {
 protected:
  explicit CalendarProviderTest(
      std::unique_ptr<TravelTimeEstimator> travel = std::make_unique<NullTravelTimeEstimator>()) {
    auto backend = std::make_unique<FakeCalendarBackend>(tenOClock());
    backend_ = backend.get();
    provider_ = std::make_unique<CalendarProvider>(
        context_, std::move(backend), std::move(travel), sounds_, [this] { return now_; },
        [this](const QUrl& url) {
          opened_ << url;
          return true;
        },
        std::unique_ptr<OneShotScheduler>(wake_));
  }

  void enable() {
    (void)context_.settings().write(settings::calendarEnabled, true);
    QCoreApplication::processEvents();
  }
  void advanceTo(double now) {
    now_ = now;
    provider_->update();
  }

  ProviderTestContext context_;
  FakeCalendarBackend* backend_ = nullptr;
  std::shared_ptr<RecordedSounds> sounds_ = std::make_shared<RecordedSounds>();
  QList<QUrl> opened_;
  double now_ = tenOClock();
  ManualOneShotScheduler* wake_ = new ManualOneShotScheduler;
  std::unique_ptr<CalendarProvider> provider_;
};

TEST_F(CalendarProviderTest, FeaturesTheNextMeetingFromItsLeadTimeUntilItHasRunAWhile) {
  provider_->start();
  CalendarViewModel& view = *provider_->viewModel();
  EXPECT_FALSE(view.enabled()) << "nothing is read while the calendar is off";
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);

  enable();
  ASSERT_TRUE(view.featured());
  EXPECT_EQ(view.title(), "Design review");
  EXPECT_EQ(view.earText(), "8 min");
  EXPECT_EQ(view.countdown(), "in 8 min");
  EXPECT_EQ(view.joinService(), "Zoom");
  EXPECT_EQ(context_.activities().current(), ActivityKind::upcomingEvent);
  // The next change shown is the countdown's next minute, 60 s on, and the wake-up brings it.
  EXPECT_EQ(provider_->nextUpdate(), now_ + 60);
  EXPECT_EQ(wake_->aimed(), 60);
  now_ += 60;
  wake_->fire();
  EXPECT_EQ(view.earText(), "7 min");
  advanceTo(now_ + 45);  // brought up to date early, by some other change
  EXPECT_EQ(wake_->aimed(), 15) << "still aimed at the same minute";

  advanceTo(tenOClock() + 8 * 60 + 90);
  EXPECT_EQ(view.earText(), "Now");
  EXPECT_EQ(view.countdown(), "29 min left");
  EXPECT_TRUE(view.started());

  // Five minutes after its start it lets go; the agenda marks it under way.
  advanceTo(tenOClock() + 13 * 60);
  EXPECT_FALSE(view.featured());
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  const QVariantList agenda = view.agenda();
  ASSERT_EQ(agenda.size(), 4) << "the declined sync is left out";
  EXPECT_EQ(agenda[0].toMap()["title"], "Ada's birthday") << "all-day events first";
  EXPECT_EQ(agenda[1].toMap()["status"], "ended");
  EXPECT_EQ(agenda[2].toMap()["status"], "now");
  EXPECT_EQ(agenda[2].toMap()["joinService"], "Zoom");

  (void)context_.settings().write(settings::calendarEnabled, false);
  EXPECT_FALSE(wake_->isPending()) << "nothing wakes while the calendar is off";
}

TEST_F(CalendarProviderTest, SettingsShapeWhatIsShown) {
  provider_->start();
  enable();
  CalendarViewModel& view = *provider_->viewModel();
  (void)context_.settings().write(settings::calendarTimeFormat, EventTimeFormat::both);
  EXPECT_TRUE(view.earText().startsWith("8 min · "));
  (void)context_.settings().write(settings::calendarPrivacyMode, true);
  EXPECT_EQ(view.title(), "Event");
  EXPECT_EQ(view.joinService(), "Zoom") << "the Join button stays in privacy mode";
  EXPECT_TRUE(view.reminders().isEmpty());
  (void)context_.settings().write(settings::remindersEnabled, true);
  ASSERT_EQ(view.reminders().size(), 2);
  EXPECT_EQ(view.reminders()[0].toMap()["title"], "Reminder");
  EXPECT_FALSE(view.reminders()[0].toMap()["done"].toBool()) << "open to-dos first";
  (void)context_.settings().write(settings::calendarExcludedIdentifiers, {"work"});
  EXPECT_FALSE(view.featured());
  EXPECT_TRUE(view.agenda().isEmpty());
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
}

TEST_F(CalendarProviderTest, TheStartSoundPlaysOncePerMeetingAcrossRestarts) {
  (void)context_.settings().write(settings::calendarEventSound, true);
  provider_->start();
  enable();
  advanceTo(now_ + 60);
  EXPECT_EQ(sounds_->played, QStringList{"tindra-event"});
  const auto log = UpcomingEventSoundLog::fromJSON(
      JSONValue(context_.settings().read(settings::calendarEventSoundLog)));
  EXPECT_EQ(log.played.size(), 1U);

  // A new provider, as after a restart, finds the log and stays quiet.
  auto restarted = std::make_unique<CalendarProvider>(
      context_, std::make_unique<FakeCalendarBackend>(tenOClock()),
      std::make_unique<NullTravelTimeEstimator>(), sounds_, [this] { return now_; },
      [](const QUrl&) { return true; });
  restarted->start();
  EXPECT_EQ(sounds_->played.size(), 1);
}

TEST_F(CalendarProviderTest, JoinOpensTheMeetingLinkWithTheDesktop) {
  provider_->start();
  enable();
  CalendarViewModel& view = *provider_->viewModel();
  EXPECT_TRUE(view.join(view.featuredID()));
  ASSERT_EQ(opened_.size(), 1);
  EXPECT_EQ(opened_[0], QUrl("https://example.zoom.us/j/5551234567"));
  EXPECT_FALSE(view.join("work:lunch")) << "an event without a link opens nothing";
}

TEST_F(CalendarProviderTest, NoDepartureTimeIsShownWithoutATravelTimeSource) {
  (void)context_.settings().write(settings::travelTimeEnabled, true);
  provider_->start();
  enable();
  advanceTo(tenOClock() + 40 * 60);  // the review is over; lunch at 12:30 is next
  EXPECT_TRUE(provider_->viewModel()->departure().isEmpty());
}

class CalendarProviderTravelTest : public CalendarProviderTest {
 protected:
  CalendarProviderTravelTest() : CalendarProviderTest(std::make_unique<FixedTravelTime>()) {}
  const FixedTravelTime& travel() const {
    return static_cast<const FixedTravelTime&>(provider_->travel());
  }
};

TEST_F(CalendarProviderTravelTest, ADepartureTimeFollowsTheTripAndTheBuffer) {
  (void)context_.settings().write(settings::travelTimeEnabled, true);
  provider_->start();
  enable();
  advanceTo(tenOClock() + 40 * 60);
  // Lunch at 12:30, 20 minutes away, 5 minutes to spare: leave at 12:05, in 1 h 25 min.
  EXPECT_EQ(provider_->viewModel()->departure(), "Leave in 1 h 25 min");
  EXPECT_EQ(travel().asked, QStringList{"Café Nero, Storgata 5"});
}

TEST_F(CalendarProviderTest, ViewsDrawTheMeetingItsJoinButtonAndTheAgenda) {
  (void)context_.settings().write(settings::remindersEnabled, true);
  provider_->start();
  enable();
  CalendarViewModel* view = provider_->viewModel();
  const ViewRegistry::View compact = compactView<CalendarProvider>(ActivityKind::upcomingEvent);
  const PixelTest blue = hueOf("#0a84ff"), green = hueOf("#30d158");
  // Closed: the calendar's colour and the title, cut short, on the left; the minutes to go in
  // white on the right, and once it started "Now" in green.
  const QImage soon = viewShot(compact, view, {260, 32}, "calendar-compact");
  EXPECT_GT(countPixels(soon, blue, {0, 0, 20, 32}), 40);
  const QRect title = drawnArea(soon, {20, 0, 110, 32});
  EXPECT_GT(title.width(), 30);
  EXPECT_LE(title.width(), 66);
  EXPECT_GT(countPixels(soon, near(Qt::white), rightHalf(soon)), 20);
  EXPECT_EQ(countPixels(soon, green), 0);

  // Opened: the Join button under the meeting, then the rest of the agenda, each row with its
  // calendar's colour, the past breakfast dimmed; the meeting is not drawn again below itself.
  // The to-dos have no room left and are counted in the last line instead of being cut.
  const QImage panel =
      viewShot(QUrl("qrc:/Tindra/calendar/CalendarPanel.qml"), view, {240, 156}, "calendar-panel");
  EXPECT_GT(countPixels(panel, blue, {0, 30, 120, 30}), 800);
  EXPECT_GT(countPixels(panel, blue, {0, 78, 4, 50}), 60);
  EXPECT_GT(countPixels(panel, near(Qt::white), {20, 79, 180, 15}), 20);     // birthday
  EXPECT_EQ(countPixels(panel, near(Qt::white, 80), {20, 96, 180, 15}), 0);  // breakfast
  EXPECT_GT(countPixels(panel, near(Qt::white), {20, 113, 180, 15}), 20);    // lunch
  EXPECT_EQ(countPixels(panel, blue, {150, 78, 90, 78}), 0);                 // no second Join
  EXPECT_GT(countPixels(panel, near(QColor("#8e8e93"), 40), {0, 130, 60, 15}), 10);  // "2 more"

  advanceTo(tenOClock() + 9 * 60);
  const QImage started = viewShot(compact, view, {260, 32}, "calendar-compact-started");
  EXPECT_GT(countPixels(started, green, rightHalf(started)), 20);
  EXPECT_EQ(countPixels(started, near(Qt::white), rightHalf(started)), 0);
}

}  // namespace
}  // namespace tindra
