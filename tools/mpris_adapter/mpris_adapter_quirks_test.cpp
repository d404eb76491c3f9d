// The adapter against a scripted player (python3-dbusmock on this program's private session bus)
// that behaves like a browser tab answering nonsense, and then leaves.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QProcess>
#include <QTest>

#include "nowplaying/adapter_message_parser.h"
#include "testing/dbus_mock_service.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

const QString busName = QStringLiteral("org.mpris.MediaPlayer2.chromium.instance4321");
const QString path = QStringLiteral("/org/mpris/MediaPlayer2");
const QString playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");

class QuirkyPlayerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    player_ = std::make_unique<DBusMockService>(QDBusConnection::sessionBus(), busName,
                                                QStringList{busName, path, playerInterface});
    QString error;
    if (!player_->start(&error)) SKIP_OR_FAIL_ON_CI("no scripted player: " + error.toStdString());
    QObject::connect(&stream_, &QProcess::readyReadStandardOutput, [this] {
      const QByteArray bytes = stream_.readAllStandardOutput();
      for (auto& result : parser_.feed({bytes.constData(), std::size_t(bytes.size())})) {
        if (result) latest_ = *result, ++messages_;
      }
    });
  }
  void TearDown() override {
    stream_.kill();
    stream_.waitForFinished(2000);
  }
  void setMetadata(const QVariantMap& metadata) {
    ASSERT_EQ(player_->call(path, "AddProperties",
                            {playerInterface, QVariantMap{{"Metadata", metadata}}}),
              QString());
  }
  bool waitFor(const std::function<bool(const std::optional<NowPlayingSnapshot>&)>& seen) {
    return QTest::qWaitFor([&] { return messages_ > 0 && seen(latest_); }, 10000);
  }

  std::unique_ptr<DBusMockService> player_;
  QProcess stream_;
  AdapterMessageParser parser_;
  std::optional<NowPlayingSnapshot> latest_;
  int messages_ = 0;
};

TEST_F(QuirkyPlayerTest, ABrowserTabWithoutPositionAndWithNonsenseThenGone) {
  // No Position property at all, and a length of the wrong type.
  ASSERT_EQ(
      player_->call(path, "AddProperties",
                    {playerInterface, QVariantMap{{"PlaybackStatus", "Playing"}, {"Rate", 1.0}}}),
      QString());
  setMetadata({{"xesam:title", "Tab Song"},
               {"xesam:artist", 7},
               {"xesam:album", QStringList{"not", "text"}},
               {"mpris:length", "forever"},
               {"mpris:artUrl", "https://tracker.example/pixel.png"}});
  stream_.start(TINDRA_ADAPTER, {"stream", "--micros", "--debounce=50", "--no-artwork"});
  ASSERT_TRUE(waitFor([](const auto& s) { return s && s->title == "Tab Song"; }));
  EXPECT_EQ(latest_->bundleIdentifier, "chromium");  // without its instance number
  // Values of the wrong type are left out, not guessed at.
  EXPECT_FALSE(latest_->artist || latest_->album || latest_->duration || latest_->artwork);
  EXPECT_FALSE(latest_->elapsed);  // no Position property at all

  // The player goes away in the middle of it all.
  ASSERT_TRUE(player_->stop());
  ASSERT_TRUE(waitFor([](const auto& s) { return !s.has_value(); }));
  EXPECT_EQ(stream_.state(), QProcess::Running);
}

}  // namespace
}  // namespace tindra
