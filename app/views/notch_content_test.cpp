#include "views/notch_content.h"

#include <gtest/gtest.h>

#include <QQuickItem>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <memory>

#include "base/activity_center.h"
#include "media/now_playing_view_model.h"
#include "settings/settings_keys.h"
#include "tindra_providers.h"

namespace tindra {
namespace {

class NotchContentTest : public ::testing::Test {
 protected:
  QStringList sectionNames() const {
    QStringList names;
    for (const QVariant& section : content_.sections()) names << section.toMap()["name"].toString();
    return names;
  }

  QTemporaryDir dir_;
  SettingsStore store_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  ActivityCenter activities_{store_};
  ViewRegistry views_{TindraProviders::views()};
  QObject media_;
  QObject battery_;
  QObject focus_;
  NowPlayingViewModel nowPlaying_{[](const NowPlayingCommand&) {}};
  NotchContent content_{activities_, store_, views_};
};

TEST_F(NotchContentTest, PinnedSectionsComeInTheirOrderAndUnknownNamesAreSkipped) {
  // The level indicator's and the calls' sections come first and whatever is pinned.
  EXPECT_EQ(content_.shownSections({}), (QStringList{"hud", "banners", "media", "calendar",
                                                     "weather", "fileTray", "batteries"}));
  EXPECT_EQ(content_.shownSections({"batteries", "weather?", "media", "batteries", "hud"}),
            (QStringList{"hud", "banners", "batteries", "media"}));
  EXPECT_EQ(
      content_.shownSections({"nonsense"}),
      (QStringList{"hud", "banners", "media", "calendar", "weather", "fileTray", "batteries"}));

  // Only sections whose provider runs are drawn.
  EXPECT_TRUE(content_.sections().isEmpty());
  views_.setModel("media", &media_);
  views_.setModel("battery", &battery_);
  QSignalSpy changes(&content_, &NotchContent::sectionsChanged);
  content_.refresh();
  EXPECT_EQ(sectionNames(), (QStringList{"media", "batteries"}));
  EXPECT_FALSE(content_.sections().front().toMap()["pinned"].toBool());
  EXPECT_EQ(content_.idleItems().size(), 1);

  ASSERT_TRUE(store_.write(settings::pinnedWidgets, {"batteries", "fileTray", "calendar"}));
  EXPECT_EQ(sectionNames(), (QStringList{"batteries"}));
  EXPECT_TRUE(content_.sections().front().toMap()["pinned"].toBool());
  EXPECT_EQ(changes.count(), 2);
}

// Each activity's compact view is drawn by QML or by C++, never both; one whose provider does not
// run, or whose model its view cannot draw, is named instead.
TEST_F(NotchContentTest, TheCompactViewFollowsTheActivityWhenItsProviderRuns) {
  const auto drawnInCpp = [this]() -> QString {
    const std::unique_ptr<QQuickItem> item(content_.makeCompact());
    return item ? QString::fromLatin1(item->metaObject()->className()) : QString();
  };
  activities_.offer(ActivityEvent::began(ActivityKind::nowPlaying));
  EXPECT_TRUE(content_.compactSource().isEmpty());  // no media provider: the name is shown
  EXPECT_EQ(drawnInCpp(), "tindra::DefaultCompact");
  EXPECT_EQ(content_.activityLabel(), "Now Playing");
  views_.setModel("media", &media_);
  EXPECT_EQ(drawnInCpp(), "tindra::DefaultCompact") << "a model the view cannot draw";
  views_.setModel("media", &nowPlaying_);
  EXPECT_TRUE(content_.compactSource().isEmpty());
  EXPECT_EQ(drawnInCpp(), "tindra::MediaCompact");
  EXPECT_EQ(content_.compactModel(), &nowPlaying_);

  activities_.offer(ActivityEvent::began(ActivityKind::focus));
  views_.setModel("focus", &focus_);
  EXPECT_TRUE(content_.compactSource().toString().endsWith("FocusCompact.qml"));
  EXPECT_EQ(drawnInCpp(), "");
  activities_.offer(ActivityEvent::ended(ActivityKind::focus));
  activities_.offer(ActivityEvent::began(ActivityKind::hud, 5));
  EXPECT_TRUE(content_.compactSource().isEmpty());
  EXPECT_EQ(content_.activityLabel(), "Level");
}

TEST(IdleClockTest, RunsOnlyWhileHeldAndWakesAtTheNextMinute) {
  QDateTime now(QDate(2026, 11, 24), QTime(22, 41, 59, 500));
  IdleClock clock([&now] { return now; });
  EXPECT_EQ(clock.pendingWakeMilliseconds(), -1);
  clock.hold();
  clock.hold();
  EXPECT_EQ(clock.pendingWakeMilliseconds(), 550);
  clock.release();
  EXPECT_TRUE(clock.isRunning());
  clock.release();
  clock.release();  // one too many changes nothing
  EXPECT_EQ(clock.pendingWakeMilliseconds(), -1);
  EXPECT_TRUE(clock.dateText().contains("24"));
}

}  // namespace
}  // namespace tindra
