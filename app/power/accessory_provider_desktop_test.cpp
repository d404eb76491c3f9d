// Runs in: private-session --offscreen --sound-server --system-bus
// The route notice on a real desktop: a private PulseAudio whose extra null sink carries the
// properties of a Bluetooth headset's output, and dbusmock's BlueZ on a private system bus.
#include <gtest/gtest.h>

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include "levels/linux/pulse_volume_backend.h"
#include "power/accessory_provider.h"
#include "power/linux/bluez_accessory_backend.h"
#include "testing/dbus_mock_service.h"
#include "testing/provider_test_context.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

const QString headset = QStringLiteral("AA:BB:CC:DD:EE:01");
const QString headsetSink = QStringLiteral("bluez_output.AA_BB_CC_DD_EE_01.1");

QString pactl(const QStringList& arguments) {
  QProcess process;
  process.start("pactl", arguments);
  process.waitForFinished(5000);
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}
bool waitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 5000);
}

class AccessoryProviderDesktopTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (!qEnvironmentVariableIsSet("TINDRA_SOUND_SERVER")) return;
    pactl({"load-module", "module-null-sink", "sink_name=" + headsetSink,
           "sink_properties=\"device.bus=bluetooth api.bluez5.address=" + headset + "\""});
    bluez_ = std::make_unique<DBusMockService>(
        QDBusConnection::systemBus(), "org.bluez",
        QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/bluez_accessories.py"});
    QString error;
    if (!bluez_->start(&error)) {
      bluez_.reset();
      return;
    }
    bluez_->call("/", "AddAdapter", {"hci0", "computer"}, "org.bluez.Mock");
    bluez_->call("/", "AddDevice", {"hci0", headset, "Studio Headphones"}, "org.bluez.Mock");
  }
  static void TearDownTestSuite() { bluez_.reset(); }

  void SetUp() override {
    if (!bluez_) SKIP_OR_FAIL_ON_CI("needs scripts/private-session --sound-server --system-bus");
    pactl({"set-default-sink", "tindra_test"});
  }

  static inline std::unique_ptr<DBusMockService> bluez_;
  double now_ = 100;
  ProviderTestContext context_{[this] { return now_; }};
};

TEST_F(AccessoryProviderDesktopTest, ChoosingTheHeadsetAsOutputIsToldButNotRightAfterItConnects) {
  auto output = std::make_shared<PulseVolumeBackend>();
  AccessoryProvider provider(
      context_, std::make_unique<BlueZAccessoryBackend>(QDBusConnection::systemBus()), output);
  provider.start();
  ASSERT_TRUE(waitFor([&] { return output->reading().has_value(); }));
  ASSERT_TRUE(waitFor([&] { return provider.backend().ready(); }));  // BlueZ has answered
  AccessoryViewModel& view = *provider.viewModel();
  QSignalSpy notices(&view, &AccessoryViewModel::noticeChanged);

  ASSERT_EQ(bluez_->call("/", "ConnectDevice", {"hci0", headset}, "org.bluez.Mock"), QString());
  ASSERT_TRUE(waitFor([&] { return view.notice() == "connected"; }));
  pactl({"set-default-sink", headsetSink});  // as the sound server does for a new headset
  ASSERT_TRUE(waitFor([&] { return output->reading()->output == headsetSink; }));
  EXPECT_EQ(notices.count(), 1);

  pactl({"set-default-sink", "tindra_test"});
  ASSERT_TRUE(waitFor([&] { return output->reading()->output == "tindra_test"; }));
  now_ += 60;
  pactl({"set-default-sink", headsetSink});  // the user's choice, later
  ASSERT_TRUE(waitFor([&] { return view.notice() == "routed"; }));
  EXPECT_EQ(view.noticeAccessory()["name"], "Studio Headphones");
  EXPECT_EQ(context_.activities().current(), ActivityKind::accessory);
  ASSERT_EQ(bluez_->call("/", "DisconnectDevice", {"hci0", headset}, "org.bluez.Mock"), QString());
}

// Headphones connected before Tindra starts are simply there: BlueZ answers after the provider
// has started, and its first answer is no news of a connection.
TEST_F(AccessoryProviderDesktopTest, HeadphonesAlreadyConnectedAtStartAreNoNews) {
  ASSERT_EQ(bluez_->call("/", "ConnectDevice", {"hci0", headset}, "org.bluez.Mock"), QString());
  AccessoryProvider provider(
      context_, std::make_unique<BlueZAccessoryBackend>(QDBusConnection::systemBus()), nullptr);
  AccessoryViewModel& view = *provider.viewModel();
  QSignalSpy notices(&view, &AccessoryViewModel::noticeChanged);
  provider.start();
  ASSERT_TRUE(waitFor([&] { return view.accessories().size() == 1; }));
  QTest::qWait(100);
  EXPECT_EQ(notices.count(), 0);
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  ASSERT_EQ(bluez_->call("/", "DisconnectDevice", {"hci0", headset}, "org.bluez.Mock"), QString());
}

}  // namespace
}  // namespace tindra
