// Runs in: private-session --xvfb
// The media section against a real player on the session bus: python3-dbusmock's MPRIS player,
// read by the real tindra-mpris-adapter, whose covers are fetched over HTTP from a loopback
// server standing in for Spotify's image host and the catalogue; and mpv, crashing again and
// again.
#include <gtest/gtest.h>

#include <algorithm>

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include "media/adapter_now_playing_source.h"
#include "media/now_playing_provider.h"
#include "media/offline_artwork_fetcher.h"
#include "media/platform_adapter_launch.h"
#include "settings/settings_keys.h"
#include "testing/dbus_mock_service.h"
#include "testing/host_redirecting_artwork_fetcher.h"
#include "testing/loopback_http_server.h"
#include "testing/mpv_player.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

const QString busName = QStringLiteral("org.mpris.MediaPlayer2.spotify");
const QString path = QStringLiteral("/org/mpris/MediaPlayer2");
const QString playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QUrl panel(QStringLiteral("qrc:/Tindra/media/MediaPanel.qml"));

QVariantMap track(const QString& title, const QString& artUrl) {
  return {{"mpris:trackid", QVariant::fromValue(QDBusObjectPath("/track/" + title.toLower()))},
          {"xesam:title", title},
          {"xesam:artist", QStringList{"The Loopbacks"}},
          {"xesam:album", title + " (single)"},
          {"mpris:length", qlonglong(200'000'000)},
          {"mpris:artUrl", artUrl}};
}

bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 10000);
}

class NowPlayingDesktopTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    context_ = std::make_unique<ProviderTestContext>();
    player_ = std::make_unique<DBusMockService>(QDBusConnection::sessionBus(), busName,
                                                QStringList{busName, path, playerInterface});
    QString error;
    if (!player_->start(&error)) {
      problem_ = "no scripted player: " + error.toStdString();
      player_.reset();
      return;
    }
    // Everything a player that lets itself be controlled says, but no Shuffle or LoopStatus.
    player_->call(path, "AddProperties",
                  {playerInterface, QVariantMap{{"PlaybackStatus", "Playing"},
                                                {"Rate", 1.0},
                                                {"Position", qlonglong(30'000'000)},
                                                {"CanControl", true},
                                                {"CanPlay", true},
                                                {"CanPause", true},
                                                {"CanGoNext", true},
                                                {"CanGoPrevious", true},
                                                {"CanSeek", true},
                                                {"Metadata", track("Orange", spotifyCover)}}});
    server_ = std::make_unique<LoopbackHTTPServer>();
    server_->setResponse("/image/ab67orange",
                         {200, {{"Content-Type", "image/png"}}, solidPng(orange)});
    server_->setResponse("/image/ab67blue", {200, {{"Content-Type", "image/png"}}, solidPng(blue)});
    auto fetcher = std::make_unique<HostRedirectingArtworkFetcher>(
        server_->url("/"), QStringList{"i.scdn.co", "itunes.apple.com"});
    fetcher_ = fetcher.get();
    const AdapterLaunch launch = platformAdapterLaunch();
    provider_ = std::make_unique<NowPlayingProvider>(
        *context_, [launch] { return std::make_unique<AdapterNowPlayingSource>(launch); },
        std::make_unique<AdapterProbe>(launch), std::move(fetcher));
    provider_->start();
  }
  static void TearDownTestSuite() {
    provider_.reset();
    player_.reset();
    server_.reset();
    context_.reset();
  }

  void SetUp() override {
    if (!player_) SKIP_OR_FAIL_ON_CI(problem_);
  }

  static void set(const QString& property, const QVariant& value) {
    ASSERT_EQ(player_->call(path, "Set",
                            {playerInterface, property, QVariant::fromValue(QDBusVariant(value))},
                            propertiesInterface),
              QString());
  }
  static bool requested(const QByteArray& path) {
    return std::ranges::any_of(server_->requests(),
                               [&](const auto& request) { return request.path == path; });
  }
  static NowPlayingViewModel& view() { return *provider_->viewModel(); }

  static constexpr const char* spotifyCover = "https://i.scdn.co/image/ab67orange";
  static inline const QColor orange{255, 140, 0};
  static inline const QColor blue{20, 90, 255};
  static inline std::unique_ptr<ProviderTestContext> context_;
  static inline std::unique_ptr<DBusMockService> player_;
  static inline std::unique_ptr<LoopbackHTTPServer> server_;
  static inline HostRedirectingArtworkFetcher* fetcher_ = nullptr;
  static inline std::unique_ptr<NowPlayingProvider> provider_;
  static inline std::string problem_;
};

TEST_F(NowPlayingDesktopTest, SpotifyCoversAreFetchedInBothFormsAndOtherHostsNeverContacted) {
  ASSERT_TRUE(waitFor([] { return view().title() == "Orange" && view().hasCover(); }))
      << view().title().toStdString();
  EXPECT_TRUE(requested("/image/ab67orange"));
  EXPECT_EQ(view().cover().pixelColor(10, 10), orange);
  viewShot(panel, &view(), {300, 124}, "media-panel-spotify-cover");

  // The tint choice reaches the bar of the cover on screen at once.
  EXPECT_FALSE(view().barColor().isValid());
  QSignalSpy covers(&view(), &NowPlayingViewModel::coverChanged);
  ASSERT_TRUE(context_->settings().write(settings::nowPlayingProgressTint,
                                         NowPlayingProgressTint::artwork));
  EXPECT_EQ(covers.count(), 1);
  EXPECT_TRUE(view().barColor().isValid());
  viewShot(panel, &view(), {300, 124}, "media-panel-spotify-cover-tinted");
  ASSERT_TRUE(context_->settings().write(settings::nowPlayingProgressTint,
                                         NowPlayingProgressTint::standard));
  EXPECT_FALSE(view().barColor().isValid());

  // The older page form is fetched from the image host; the page host is never asked.
  set("Metadata", track("Blue", "https://open.spotify.com/image/ab67blue"));
  ASSERT_TRUE(waitFor([] {
    return view().title() == "Blue" && view().hasCover() &&
           view().cover().pixelColor(10, 10) == blue;
  }));
  EXPECT_TRUE(requested("/image/ab67blue"));
  EXPECT_FALSE(fetcher_->askedForHost("open.spotify.com"));

  // Any other host is never contacted; the catalogue is asked instead, as for a track without a
  // cover (it knows none here).
  set("Metadata", track("Grey", "https://covers.example.net/ab67grey.jpg"));
  ASSERT_TRUE(waitFor([] { return fetcher_->askedForHost("itunes.apple.com"); }));
  EXPECT_EQ(view().title(), "Grey");
  EXPECT_FALSE(view().hasCover());
  EXPECT_FALSE(fetcher_->askedForHost("covers.example.net"));
}

TEST_F(NowPlayingDesktopTest, ControlsFollowWhatThePlayerSaysItCanDo) {
  ASSERT_TRUE(waitFor([] { return view().hasTrack(); }));
  EXPECT_TRUE(view().canPlayPause() && view().canGoNext() && view().canGoPrevious() &&
              view().canSeek());
  EXPECT_FALSE(view().canShuffle() || view().canRepeat()) << "the player shows no such modes";

  set("CanGoNext", false);
  set("CanSeek", false);
  ASSERT_TRUE(waitFor([] { return !view().canGoNext() && !view().canSeek(); }));
  EXPECT_TRUE(view().canGoPrevious() && view().canPlayPause());
  set("CanPlay", false);
  set("CanGoPrevious", false);
  ASSERT_TRUE(waitFor([] { return !view().canGoPrevious(); }));
  EXPECT_TRUE(view().canPlayPause()) << "a player that can still pause keeps the button";
  set("CanPause", false);
  ASSERT_TRUE(waitFor([] { return !view().canPlayPause(); }));

  // A player that takes no command shows its track without buttons.
  set("CanControl", false);
  ASSERT_TRUE(waitFor([] { return !view().hasControls(); }));
  EXPECT_TRUE(view().hasTrack());
  viewShot(panel, &view(), {300, 124}, "media-panel-no-controls");

  for (const char* property :
       {"CanControl", "CanPlay", "CanPause", "CanGoNext", "CanGoPrevious", "CanSeek"}) {
    set(property, true);
  }
  ASSERT_TRUE(
      waitFor([] { return view().hasControls() && view().canGoNext() && view().canSeek(); }));
}

// A player killed at random moments and started again on another track: each time the section
// shows the new track playing, never the dead player's last one.
TEST(NowPlayingRecoveryTest, FollowsThePlayerBackAfterEveryCrash) {
  if (const QString missing = MpvPlayer::missing(); !missing.isEmpty()) {
    SKIP_OR_FAIL_ON_CI(missing.toStdString());
  }
  ProviderTestContext context;
  const AdapterLaunch launch = platformAdapterLaunch();
  NowPlayingProvider provider(
      context, [launch] { return std::make_unique<AdapterNowPlayingSource>(launch); },
      std::make_unique<AdapterProbe>(launch), std::make_unique<OfflineArtworkFetcher>());
  provider.start();
  const NowPlayingViewModel& view = *provider.viewModel();

  int round = 0;
  QString track = "take00";
  // Tones of a few seconds: each player lives for a moment, and a short one is quick to make.
  constexpr int seconds = 10;
  auto player = std::make_unique<MpvPlayer>(QStringList{track}, seconds);
  ASSERT_TRUE(player->onBus());
  ASSERT_TRUE(waitFor([&] { return view.title().startsWith(track) && view.playing(); }));

  RestartDrillSteps steps;
  steps.kill = [&] {
    player->kill();
    return true;
  };
  steps.showsGone = [&] { return !view.hasTrack(); };
  steps.restart = [&] {
    track = QStringLiteral("take%1").arg(++round, 2, 10, QLatin1Char('0'));
    player = std::make_unique<MpvPlayer>(QStringList{track}, seconds);
    return player->onBus();
  };
  steps.rightState = [&] { return view.title().startsWith(track) && view.playing(); };
  const RestartDrillReport report = runRestartDrill("MPRIS player", steps);
  EXPECT_EQ(report.failure, QString()) << report.failure.toStdString();
  EXPECT_EQ(report.restarts, 20);

  int left = 0;
  QString last;
  for (const auto& entry : context.diagnostics().entries()) {
    last = entry.text.english();
    if (last.contains("left")) ++left;
  }
  EXPECT_EQ(left, 20);
  EXPECT_TRUE(last.contains("following mpv")) << last.toStdString();
}

}  // namespace
}  // namespace tindra
