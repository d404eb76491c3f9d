// Runs in: private-session --offscreen --sound-server
#include "levels/linux/pulse_volume_backend.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTest>

#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

// `pactl`, the outside program that changes the level.
QString pactl(const QStringList& arguments) {
  QProcess process;
  process.start("pactl", arguments);
  process.waitForFinished(5000);
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

// The private PulseAudio of scripts/private-session --sound-server, with a second null sink.
class PulseVolumeBackendTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (qEnvironmentVariableIsSet("TINDRA_SOUND_SERVER")) {
      pactl({"load-module", "module-null-sink", "sink_name=second"});
    }
  }
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("TINDRA_SOUND_SERVER")) {
      SKIP_OR_FAIL_ON_CI("no private sound server (scripts/private-session --sound-server)");
    }
    pactl({"set-default-sink", "tindra_test"});
    pactl({"set-sink-volume", "tindra_test", "100%"});
    pactl({"set-sink-mute", "tindra_test", "0"});
  }
  static bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
  }
};

TEST_F(PulseVolumeBackendTest, FollowsTheDefaultOutputAndWritesToIt) {
  PulseVolumeBackend backend;
  backend.start();
  ASSERT_TRUE(
      waitFor([&] { return backend.reading() && backend.reading()->output == "tindra_test"; }));
  EXPECT_NEAR(backend.reading()->level, 1.0, 0.01);
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::ok);

  pactl({"set-sink-volume", "tindra_test", "50%"});
  ASSERT_TRUE(waitFor([&] { return std::abs(backend.reading()->level - 0.5) < 0.01; }));
  pactl({"set-sink-mute", "tindra_test", "1"});
  ASSERT_TRUE(waitFor([&] { return backend.reading()->muted; }));

  pactl({"set-default-sink", "second"});
  ASSERT_TRUE(waitFor([&] { return backend.reading()->output == "second"; }));
  backend.setLevel(0.25);
  ASSERT_TRUE(waitFor([&] { return pactl({"get-sink-volume", "second"}).contains("25%"); }));
  backend.setMuted(true);
  ASSERT_TRUE(waitFor([&] { return pactl({"get-sink-mute", "second"}).contains("yes"); }));
  ASSERT_TRUE(waitFor([&] { return backend.reading()->muted; }));
  pactl({"set-sink-mute", "second", "0"});
  pactl({"set-sink-volume", "second", "100%"});
}

TEST_F(PulseVolumeBackendTest, KeepsTheVolumeSoundInTheServersCache) {
  PulseVolumeBackend backend;
  backend.start();
  ASSERT_TRUE(waitFor([] {
    return pactl({"list", "samples", "short"}).contains("tindra-volume-tick");
  }));
}

TEST(PulseSampleTest, TakesSixteenBitPcmWavAndNothingElse) {
  QFile file(":/sounds/tindra-volume-tick.wav");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray wav = file.readAll();
  const auto sound = PulseSample::fromWav(wav);
  ASSERT_TRUE(sound);
  EXPECT_EQ(sound->format.rate, 48000u);
  EXPECT_EQ(sound->format.channels, 1);
  EXPECT_EQ(sound->frames.size(), 2160 * 2);  // 45 ms

  EXPECT_FALSE(PulseSample::fromWav(wav.left(40)));  // the data chunk runs past the end
  QByteArray eightBit = wav;
  eightBit[34] = 8;
  EXPECT_FALSE(PulseSample::fromWav(eightBit));
  EXPECT_FALSE(PulseSample::fromWav("RIFF\x04\0\0\0WAVE"));
  EXPECT_FALSE(PulseSample::fromWav(QByteArray()));

  // Compiled in uncompressed, the sound is read where it lies: the same frames, no copy.
  const auto compiledIn = PulseSample::fromResource(":/sounds/tindra-volume-tick.wav");
  ASSERT_TRUE(compiledIn);
  EXPECT_EQ(compiledIn->frames, sound->frames);
  EXPECT_EQ(compiledIn->frames.capacity(), 0) << "a copy on the heap";
  EXPECT_FALSE(PulseSample::fromResource(":/sounds/none.wav"));
}

// Runs last in this program: the server it leaves behind is one the test started itself.
TEST_F(PulseVolumeBackendTest, LosesTheOutputWithTheServerAndFindsItAgain) {
  PulseVolumeBackend backend;
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.reading().has_value(); }));
  pactl({"exit"});
  ASSERT_TRUE(waitFor([&] { return !backend.reading(); }));
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::degraded);
  EXPECT_TRUE(backend.check().text.translated().contains("went away"));
  // One started while no server runs says so, rather than seeming to be on its way.
  PulseVolumeBackend late;
  late.start();
  ASSERT_TRUE(waitFor([&] { return late.check().outcome == DiagnosticsLog::Outcome::degraded; }));
  EXPECT_TRUE(late.check().text.translated().contains("no sound server answers"));

  QProcess::execute("pulseaudio", {"--daemonize=yes", "-n", "--exit-idle-time=-1",
                                   "--load=module-native-protocol-unix",
                                   "--load=module-null-sink sink_name=tindra_test"});
  EXPECT_TRUE(QTest::qWaitFor([&] { return backend.reading().has_value(); },
                              3 * PulseConnection::reconnectMilliseconds + 2000));
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::ok);
  EXPECT_TRUE(QTest::qWaitFor([&] { return late.reading().has_value(); },
                              3 * PulseConnection::reconnectMilliseconds + 2000));
  EXPECT_EQ(late.check().outcome, DiagnosticsLog::Outcome::ok);
  pactl({"exit"});
}

TEST(PulseTransportTest, BusAndNameSayHowTheOutputIsAttached) {
  EXPECT_EQ(PulseVolumeBackend::transportOf("bluetooth", "bluez_sink.AA"),
            AudioTransport::bluetooth);
  EXPECT_EQ(PulseVolumeBackend::transportOf("usb", "alsa_output.usb-Headset"), AudioTransport::usb);
  EXPECT_EQ(PulseVolumeBackend::transportOf("pci", "alsa_output.pci.hdmi-stereo hdmi-output-0"),
            AudioTransport::hdmi);
  EXPECT_EQ(PulseVolumeBackend::transportOf("pci", "alsa_output.pci analog-output-speaker"),
            AudioTransport::builtIn);
  EXPECT_EQ(PulseVolumeBackend::transportOf("", "tindra_test"), AudioTransport::other);
}

TEST(PulseTransportTest, BluetoothSinksNameTheirDevice) {
  const QString bus = "bluetooth";
  // PipeWire's property, PulseAudio's device string, then the address in the name.
  EXPECT_EQ(PulseVolumeBackend::bluetoothAddressOf(bus, "AA:BB:CC:DD:EE:01", "", "x"),
            "aa:bb:cc:dd:ee:01");
  EXPECT_EQ(PulseVolumeBackend::bluetoothAddressOf(bus, "", "AA:BB:CC:DD:EE:02", "x"),
            "aa:bb:cc:dd:ee:02");
  EXPECT_EQ(PulseVolumeBackend::bluetoothAddressOf(bus, "", "/org/bluez/hci0/dev_AA",
                                                   "bluez_output.AA_BB_CC_DD_EE_03.1"),
            "aa:bb:cc:dd:ee:03");
  EXPECT_EQ(
      PulseVolumeBackend::bluetoothAddressOf(bus, "", "", "bluez_sink.AA_BB_CC_DD_EE_04.a2dp_sink"),
      "aa:bb:cc:dd:ee:04");
  EXPECT_FALSE(PulseVolumeBackend::bluetoothAddressOf(bus, "", "", "bluez_output.AA_BB_CC.1"));
  // A USB sink whose name happens to hold twelve hexadecimal digits is no Bluetooth device.
  EXPECT_FALSE(PulseVolumeBackend::bluetoothAddressOf("usb", "", "", "alsa.AABBCCDDEE05.x"));
}

}  // namespace
}  // namespace tindra
