#include "power/accessory_provider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>

#include "base/activity_center.h"
#include "levels/fake_volume_backend.h"
#include "power/fake_accessory_backend.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "testing/recorded_sounds.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

BluetoothAccessory headphones(std::optional<int> level) {
  BluetoothAccessory accessory;
  accessory.name = "Studio Headphones";
  accessory.address = "aa:bb:cc:dd:ee:01";
  accessory.kind = BluetoothAccessoryKind::headphones;
  accessory.battery.main = level;
  return accessory;
}

class AccessoryProviderTest : public ::testing::Test {
 protected:
  AccessoryProviderTest() {
    auto backend = std::make_unique<FakeAccessoryBackend>();
    backend_ = backend.get();
    provider_ =
        std::make_unique<AccessoryProvider>(ProviderContext{activities_, settings_, diagnostics_},
                                            std::move(backend), output_, sounds_);
  }

  QTemporaryDir dir_;
  SettingsStore settings_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  double now_ = 100;
  ActivityCenter activities_{settings_, [this] { return now_; }};
  DiagnosticsLog diagnostics_;
  std::shared_ptr<RecordedSounds> sounds_ = std::make_shared<RecordedSounds>();
  std::shared_ptr<FakeVolumeBackend> output_ = std::make_shared<FakeVolumeBackend>();
  FakeAccessoryBackend* backend_ = nullptr;
  std::unique_ptr<AccessoryProvider> provider_;
};

TEST_F(AccessoryProviderTest, ConnectionsAndFallingBatteriesBecomeNotices) {
  provider_->start();  // the invented earbuds were there already: no notice
  AccessoryViewModel& view = *provider_->viewModel();
  EXPECT_EQ(activities_.current(), ActivityKind::idle);
  EXPECT_EQ(view.accessories().size(), 1);

  const BluetoothAccessory buds = backend_->connected().front();
  backend_->setConnected({buds, headphones(64)});
  EXPECT_EQ(activities_.current(), ActivityKind::accessory);
  EXPECT_EQ(view.notice(), "connected");
  EXPECT_EQ(view.noticeAccessory()["main"], 64);
  EXPECT_EQ(sounds_->played, QStringList{"tindra-charging"});
  activities_.reset();

  backend_->setConnected({buds, headphones(19)});
  EXPECT_EQ(view.notice(), "low");
  EXPECT_EQ(view.noticePart(), "main");
  EXPECT_EQ(sounds_->played.size(), 2);

  ASSERT_TRUE(settings_.write(settings::accessoryDisconnectNotice, false));
  activities_.reset();
  backend_->setConnected({headphones(19)});
  EXPECT_EQ(activities_.current(), ActivityKind::idle);
  ASSERT_TRUE(settings_.write(settings::accessoryDisconnectNotice, true));
  backend_->setConnected({});
  EXPECT_EQ(view.notice(), "disconnected");
  EXPECT_FALSE(view.hasContent());
}

TEST_F(AccessoryProviderTest, SoundMovingToAnAccessoryIsToldOnceButNotForItsOwnConnection) {
  provider_->start();  // the invented output, not the earbuds: nothing to tell
  AccessoryViewModel& view = *provider_->viewModel();
  QSignalSpy notices(&view, &AccessoryViewModel::noticeChanged);
  const BluetoothAccessory buds = backend_->connected().front();
  output_->routeTo("bluez_output.0A_00_00_00_00_01.1", buds.address);
  EXPECT_EQ(activities_.current(), ActivityKind::accessory);
  EXPECT_EQ(view.notice(), "routed");
  EXPECT_EQ(view.noticeAccessory()["name"], "Invented Buds");
  EXPECT_TRUE(sounds_->played.isEmpty());  // the sound itself is there now
  output_->setLevel(0.3);                  // the same output again
  EXPECT_EQ(notices.count(), 1);

  // Switched off, live.
  ASSERT_TRUE(settings_.write(settings::accessoryRouteNotice, false));
  output_->routeTo("invented-output", std::nullopt);
  output_->routeTo("bluez_output.0A_00_00_00_00_01.1", buds.address);
  EXPECT_EQ(notices.count(), 1);
  ASSERT_TRUE(settings_.write(settings::accessoryRouteNotice, true));

  // Headphones connect and the sound server switches to them a moment later: one notice.
  output_->routeTo("invented-output", std::nullopt);
  backend_->setConnected({buds, headphones(64)});
  now_ += 2;
  output_->routeTo("bluez_output.AA_BB_CC_DD_EE_01.1", "aa:bb:cc:dd:ee:01");
  EXPECT_EQ(notices.count(), 2);
  EXPECT_EQ(view.notice(), "connected");
  // Back to the earbuds a minute later, by the user's choice: told.
  now_ += 60;
  output_->routeTo("bluez_output.0A_00_00_00_00_01.1", buds.address);
  EXPECT_EQ(notices.count(), 3);
  EXPECT_EQ(view.notice(), "routed");
}

TEST_F(AccessoryProviderTest, TheBatteryStyleAndLowLevelFollowTheSettings) {
  AccessoryViewModel& view = *provider_->viewModel();
  EXPECT_EQ(view.batteryStyle(), "percentage");
  EXPECT_EQ(view.lowThreshold(), 20);
  QSignalSpy drawing(&view, &AccessoryViewModel::drawingChanged);
  ASSERT_TRUE(settings_.write(settings::accessoryBatteryStyle, AccessoryBatteryStyle::ring));
  EXPECT_EQ(view.batteryStyle(), "ring");
  ASSERT_TRUE(settings_.write(settings::accessoryLowThreshold, 90));
  EXPECT_EQ(view.lowThreshold(), 50);  // the highest threshold offered
  EXPECT_EQ(drawing.count(), 2);
}

// Red pixels on the right half, where the levels are.
int redOnTheRight(const QImage& picture) {
  int red = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = picture.width() / 2; x < picture.width(); ++x) {
      const QColor c = picture.pixelColor(x, y);
      red += c.red() > 200 && c.green() < 120 ? 1 : 0;
    }
  }
  return red;
}

// Each notice on the ears and the section, in both styles, to be looked at; low parts in red.
TEST_F(AccessoryProviderTest, NoticesAndTheSectionAreDrawn) {
  AccessoryViewModel& view = *provider_->viewModel();
  const QUrl compact("qrc:/Tindra/power/AccessoryCompact.qml");
  const QUrl panel("qrc:/Tindra/power/AccessoriesPanel.qml");
  const BluetoothAccessory buds = FakeAccessoryBackend::inventedBuds();
  view.setAccessories({buds, headphones(64)});
  view.setNotice({AccessoryNotice::Kind::connected, buds, std::nullopt});
  EXPECT_FALSE(viewShot(compact, &view, {260, 32}, "accessory-connected").isNull());
  view.setNotice({AccessoryNotice::Kind::disconnected, headphones(64), std::nullopt});
  EXPECT_FALSE(viewShot(compact, &view, {260, 32}, "accessory-disconnected").isNull());
  view.setNotice({AccessoryNotice::Kind::routed, buds, std::nullopt});
  EXPECT_FALSE(viewShot(compact, &view, {260, 32}, "accessory-routed").isNull());
  view.setNotice({AccessoryNotice::Kind::low, headphones(9), AccessoryBatteryPart::main});
  EXPECT_GT(redOnTheRight(viewShot(compact, &view, {260, 32}, "accessory-low")), 20);
  const QImage numbers = viewShot(panel, &view, {170, 110}, "accessories-panel");
  EXPECT_EQ(redOnTheRight(numbers), 0);

  view.setDrawing(AccessoryBatteryStyle::ring, 20);
  EXPECT_GT(redOnTheRight(viewShot(compact, &view, {260, 32}, "accessory-low-ring")), 20);
  view.setNotice({AccessoryNotice::Kind::connected, buds, std::nullopt});
  EXPECT_FALSE(viewShot(compact, &view, {260, 32}, "accessory-connected-ring").isNull());
  // The earbuds' case at 15 % is low; the headphones at 64 % are not.
  BluetoothAccessory lowCase = buds;
  lowCase.battery.caseLevel = 15;
  view.setAccessories({lowCase, headphones(64)});
  const QImage rings = viewShot(panel, &view, {170, 110}, "accessories-panel-ring");
  EXPECT_NE(rings, numbers);
  EXPECT_GT(redOnTheRight(rings), 20);
}

}  // namespace
}  // namespace tindra
