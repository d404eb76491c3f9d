// Runs in: private-session --offscreen --system-bus
#include "power/linux/bluez_accessory_backend.h"

#include <gtest/gtest.h>

#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QTest>

#include "power/accessory_provider.h"
#include "testing/dbus_mock_service.h"
#include "testing/provider_test_context.h"
#include "testing/restart_drill.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

const QString headset = QStringLiteral("AA:BB:CC:DD:EE:01");
const QString speaker = QStringLiteral("AA:BB:CC:DD:EE:02");

// BlueZ (dbusmock's bluez5 template with what accessories add) and UPower on the private system
// bus, with one adapter and two devices.
class BlueZAccessoryBackendTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    const QDBusConnection bus = QDBusConnection::systemBus();
    bluez_ = std::make_unique<DBusMockService>(
        bus, "org.bluez",
        QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/bluez_accessories.py"});
    upower_ = std::make_unique<DBusMockService>(
        bus, "org.freedesktop.UPower",
        QStringList{"--template", TINDRA_SOURCE_DIR "/app/testing/upower_peripherals.py"});
    if (!bluez_->start(&startError_) || !upower_->start(&startError_)) {
      bluez_.reset();
      return;
    }
    addDevices();
  }
  // The adapter and both devices, as each start of the mock begins without them.
  static void addDevices() {
    blueZ("AddAdapter", {"hci0", "computer"});
    blueZ("AddDevice", {"hci0", headset, "Studio Headphones"});
    blueZ("AddDevice", {"hci0", speaker, "Kitchen Speaker"});
    // Headphones from Apple's product table, and a loudspeaker by its class.
    blueZ("DescribeDevice",
          {"hci0", headset, 0x240418u, "audio-headphones", "bluetooth:v004Cp200Ad0100"});
    blueZ("DescribeDevice", {"hci0", speaker, 0x240414u, "audio-card", "garbage"});
  }
  static void TearDownTestSuite() {
    bluez_.reset();
    upower_.reset();
  }
  void SetUp() override {
    if (!bluez_) SKIP_OR_FAIL_ON_CI("no mocked BlueZ: " + startError_.toStdString());
  }

  static void blueZ(const char* method, const QVariantList& arguments) {
    ASSERT_EQ(bluez_->call("/", method, arguments, "org.bluez.Mock"), QString()) << method;
  }
  // A copy: the list is a temporary.
  static std::optional<BluetoothAccessory> find(const std::vector<BluetoothAccessory>& list,
                                                const char* address) {
    for (const auto& accessory : list) {
      if (accessory.address == address) return accessory;
    }
    return std::nullopt;
  }
  static bool waitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
  }

  static inline std::unique_ptr<DBusMockService> bluez_;
  static inline std::unique_ptr<DBusMockService> upower_;
  static inline QString startError_;
};

TEST_F(BlueZAccessoryBackendTest, ConnectionsKindsAndBatteriesFromBothServices) {
  BlueZAccessoryBackend backend(QDBusConnection::systemBus());
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.check().text.english().contains("following BlueZ"); }));
  EXPECT_TRUE(backend.connected().empty());  // known, not connected

  blueZ("ConnectDevice", {"hci0", headset});
  ASSERT_TRUE(waitFor([&] { return backend.connected().size() == 1; }));
  const BluetoothAccessory first = backend.connected().front();
  EXPECT_EQ(first.name, "Studio Headphones");
  EXPECT_EQ(first.kind, BluetoothAccessoryKind::airPodsMax);  // vendor 76, product 0x200A
  EXPECT_EQ(first.minorType, "Headphones");
  EXPECT_FALSE(first.battery.main);  // no Battery1 yet

  blueZ("SetBattery", {"hci0", headset, QVariant::fromValue<uchar>(64)});
  ASSERT_TRUE(waitFor([&] { return backend.connected().front().battery.main == 64; }));
  blueZ("SetBattery", {"hci0", headset, QVariant::fromValue<uchar>(19)});
  ASSERT_TRUE(waitFor([&] { return backend.connected().front().battery.main == 19; }));
  blueZ("SetBattery", {"hci0", headset, QVariant::fromValue<uchar>(250)});  // nonsense
  ASSERT_TRUE(waitFor([&] { return !backend.connected().front().battery.main; }));
  blueZ("RemoveBattery", {"hci0", headset});

  // The speaker reports its battery to UPower only (type 18, speakers); its modalias is garbage.
  ASSERT_EQ(upower_->call("/org/freedesktop/UPower", "AddPeripheral",
                          {"speaker_battery", "Kitchen Speaker", 41.0, speaker, 18u}),
            QString());
  blueZ("ConnectDevice", {"hci0", speaker});
  ASSERT_TRUE(waitFor([&] {
    const auto found = find(backend.connected(), "aa:bb:cc:dd:ee:02");
    return found && found->battery.main == 41;
  }));
  const std::optional<BluetoothAccessory> kitchen = find(backend.connected(), "aa:bb:cc:dd:ee:02");
  ASSERT_TRUE(kitchen);
  EXPECT_EQ(kitchen->kind, BluetoothAccessoryKind::speaker);
  EXPECT_FALSE(kitchen->vendorID);

  blueZ("DisconnectDevice", {"hci0", headset});
  ASSERT_TRUE(waitFor([&] { return backend.connected().size() == 1; }));
  blueZ("DisconnectDevice", {"hci0", speaker});
  ASSERT_TRUE(waitFor([&] { return backend.connected().empty(); }));
}

TEST_F(BlueZAccessoryBackendTest, LosesTheDevicesWithBlueZAndFindsThemAgain) {
  blueZ("ConnectDevice", {"hci0", headset});
  BlueZAccessoryBackend backend(QDBusConnection::systemBus());
  backend.start();
  ASSERT_TRUE(waitFor([&] { return backend.connected().size() == 1; }));
  ASSERT_TRUE(bluez_->stop());
  ASSERT_TRUE(waitFor([&] { return backend.connected().empty(); }));
  EXPECT_EQ(backend.check().outcome, DiagnosticsLog::Outcome::degraded);
  QString error;
  ASSERT_TRUE(bluez_->start(&error)) << error.toStdString();
  ASSERT_TRUE(waitFor([&] { return backend.check().outcome == DiagnosticsLog::Outcome::ok; }));
  addDevices();  // for the tests after this one
}

// Crashes at random moments with the headset connected: each BlueZ that returns brings the
// headset back with its new battery level, and the diagnostics tell of every crash.
TEST_F(BlueZAccessoryBackendTest, TheHeadsetComesBackAfterEachOfManyCrashesOfBlueZ) {
  int battery = 64;
  const auto connectHeadset = [&battery] {
    blueZ("ConnectDevice", {"hci0", headset});
    blueZ("SetBattery", {"hci0", headset, QVariant::fromValue<uchar>(battery)});
  };
  connectHeadset();
  auto owned = std::make_unique<BlueZAccessoryBackend>(QDBusConnection::systemBus());
  BlueZAccessoryBackend& backend = *owned;
  ProviderTestContext context;
  AccessoryProvider provider(context, std::move(owned), nullptr);
  const AccessoryViewModel& view = *provider.viewModel();
  provider.start();
  const auto showsHeadset = [&] {
    const std::vector<BluetoothAccessory>& connected = backend.connected();
    return backend.check().outcome == DiagnosticsLog::Outcome::ok && connected.size() == 1 &&
           connected.front().battery.main == battery && view.accessories().size() == 1;
  };
  ASSERT_TRUE(waitFor(showsHeadset));

  QElapsedTimer drill;
  drill.start();
  const RestartDrillReport report =
      runRestartDrill("BlueZ", {.kill = [] { return bluez_->kill(); },
                                .restart =
                                    [&] {
                                      QString error;
                                      if (!bluez_->start(&error)) return false;
                                      --battery;
                                      addDevices();
                                      connectHeadset();
                                      return !::testing::Test::HasFatalFailure();
                                    },
                                .rightState = showsHeadset,
                                .showsGone = [&] { return view.accessories().isEmpty(); }});
  std::printf("BlueZ drill: %lld ms\n", static_cast<long long>(drill.elapsed()));
  EXPECT_EQ(report.failure, QString());
  EXPECT_EQ(report.restarts, 20);
  const auto saying = [&](const QString& text) {
    return std::ranges::count_if(
        context.diagnostics().entries(),
        [&](const DiagnosticsLog::Entry& entry) { return entry.text.english().contains(text); });
  };
  EXPECT_EQ(saying("BlueZ went away"), report.restarts);
  EXPECT_GE(saying("following BlueZ"), report.restarts + 1);
  blueZ("DisconnectDevice", {"hci0", headset});
}

}  // namespace
}  // namespace tindra
