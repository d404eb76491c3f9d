// The adapter against a real player: mpv with its MPRIS plug-in on this program's private
// session bus (scripts/private-session --sound-server), playing two generated tones into a
// private PulseAudio's null sink. The adapter's own output
// is read with the notch's parser, so what is tested is what the notch would show.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <memory>

#include "nowplaying/adapter_message_parser.h"
#include "testing/mpv_player.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

class MprisAdapterWithMpvTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (const QString missing = MpvPlayer::missing(); !missing.isEmpty()) {
      SKIP_OR_FAIL_ON_CI(missing.toStdString());
    }
  }

  // A player on the bus, playing both tones in turn.
  static std::unique_ptr<MpvPlayer> startPlayer() {
    auto player = std::make_unique<MpvPlayer>(QStringList{"first", "second"});
    EXPECT_TRUE(player->onBus()) << "mpv did not appear on the bus";
    return player;
  }
  static int runAdapter(const QStringList& words) {
    return QProcess::execute(TINDRA_ADAPTER, words);
  }

  // The adapter's stream, read as the notch reads it.
  struct Stream {
    QProcess process;
    AdapterMessageParser parser;
    std::optional<NowPlayingSnapshot> latest;
    int messages = 0;

    Stream() {
      QObject::connect(&process, &QProcess::readyReadStandardOutput, [this] {
        const QByteArray bytes = process.readAllStandardOutput();
        for (auto& result : parser.feed({bytes.constData(), std::size_t(bytes.size())})) {
          ASSERT_TRUE(result.has_value()) << result.error().description();
          latest = *result;
          ++messages;
        }
      });
      process.start(TINDRA_ADAPTER, {"stream", "--micros", "--debounce=50", "--no-artwork"});
    }
    ~Stream() {
      process.kill();
      process.waitForFinished(2000);
    }
    bool waitFor(const std::function<bool(const std::optional<NowPlayingSnapshot>&)>& seen) {
      return QTest::qWaitFor([&] { return messages > 0 && seen(latest); }, 10000);
    }
  };
};

TEST_F(MprisAdapterWithMpvTest, StreamFollowsThePlayerAndCommandsReachIt) {
  std::unique_ptr<MpvPlayer> player = startPlayer();
  Stream stream;
  // The player names the file first and its length once it has read it.
  ASSERT_TRUE(stream.waitFor(
      [](const auto& s) { return s && s->title == "first.wav" && s->duration == 60.0; }));
  EXPECT_TRUE(stream.latest->isPlaying);
  EXPECT_EQ(stream.latest->bundleIdentifier, "mpv");
  ASSERT_TRUE(stream.waitFor([](const auto& s) { return s && s->processIdentifier; }));
  EXPECT_EQ(*stream.latest->processIdentifier, player->processId());
  if (qEnvironmentVariableIsSet("TINDRA_SOUND_SERVER")) {  // the tone really plays
    const auto playing = [] {
      QProcess streams;
      streams.start("pactl", {"list", "short", "sink-inputs"});
      return streams.waitForFinished(5000) && !streams.readAllStandardOutput().trimmed().isEmpty();
    };
    EXPECT_TRUE(QTest::qWaitFor(playing, 5000)) << "mpv opened no stream on the sound server";
  }

  EXPECT_EQ(runAdapter({"send", "1"}), 0);
  ASSERT_TRUE(stream.waitFor([](const auto& s) { return s && !s->isPlaying; }));

  EXPECT_EQ(runAdapter({"seek", "30000000"}), 0);
  ASSERT_TRUE(stream.waitFor(
      [](const auto& s) { return s && s->elapsed && std::abs(*s->elapsed - 30) < 1; }));

  EXPECT_EQ(runAdapter({"send", "4"}), 0);
  ASSERT_TRUE(stream.waitFor([](const auto& s) { return s && s->title == "second.wav"; }));
  EXPECT_EQ(runAdapter({"send", "5"}), 0);
  ASSERT_TRUE(stream.waitFor([](const auto& s) { return s && s->title == "first.wav"; }));

  EXPECT_EQ(runAdapter({"repeat", "2"}), 0);
  ASSERT_TRUE(
      stream.waitFor([](const auto& s) { return s && s->repeatMode == RepeatMode::track; }));

  // The player quits: nothing plays; it comes back: it is followed again.
  player.reset();
  ASSERT_TRUE(stream.waitFor([](const auto& s) { return !s.has_value(); }));
  player = startPlayer();
  ASSERT_TRUE(stream.waitFor([](const auto& s) { return s && s->title == "first.wav"; }));
}

TEST_F(MprisAdapterWithMpvTest, SelfTestAndCommandsWithoutAPlayerOrABus) {
  EXPECT_EQ(runAdapter({"test"}), 0);
  EXPECT_EQ(runAdapter({"send", "2"}), 1);   // nobody to send it to
  EXPECT_EQ(runAdapter({"send", "3"}), 64);  // stop is never sent
  EXPECT_EQ(runAdapter({"repeat", "4"}), 64);
  EXPECT_EQ(runAdapter({"seek", "soon"}), 64);

  QProcess noBus;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
  noBus.setProcessEnvironment(environment);
  noBus.start(TINDRA_ADAPTER, {"test"});
  ASSERT_TRUE(noBus.waitForFinished(10000));
  EXPECT_EQ(noBus.exitCode(), 2);
}

}  // namespace
}  // namespace tindra

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
