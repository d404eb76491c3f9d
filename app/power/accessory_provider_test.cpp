#include "power/accessory_provider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "levels/fake_volume_backend.h"
#include "power/fake_accessory_backend.h"
#include "settings/settings_keys.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
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
    provider_ = std::make_unique<AccessoryProvider>(context_, std::move(backend), output_, sounds_);
  }

  double now_ = 100;
  ProviderTestContext context_{[this] { return now_; }};
  std::shared_ptr<RecordedSounds> sounds_ = std::make_shared<RecordedSounds>();
  std::shared_ptr<FakeVolumeBackend> output_ = std::make_shared<FakeVolumeBackend>();
  FakeAccessoryBackend* backend_ = nullptr;
  std::unique_ptr<AccessoryProvider> provider_;
};

TEST_F(AccessoryProviderTest, ConnectionsAndFallingBatteriesBecomeNotices) {
  provider_->start();  // the invented earbuds were there already: no notice
  AccessoryViewModel& view = *provider_->viewModel();
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  EXPECT_EQ(view.accessories().size(), 1);

  const BluetoothAccessory buds = backend_->connected().front();
  backend_->setConnected({buds, headphones(64)});
  EXPECT_EQ(context_.activities().current(), ActivityKind::accessory);
  EXPECT_EQ(view.notice(), "connected");
  EXPECT_EQ(view.noticeAccessory()["main"], 64);
  EXPECT_EQ(sounds_->played, QStringList{"tindra-charging"});
  context_.activities().reset();

  backend_->setConnected({buds, headphones(19)});
  EXPECT_EQ(view.notice(), "low");
  EXPECT_EQ(view.noticePart(), "main");
  EXPECT_EQ(sounds_->played.size(), 2);

  ASSERT_TRUE(context_.settings().write(settings::accessoryDisconnectNotice, false));
  context_.activities().reset();
  backend_->setConnected({headphones(19)});
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);
  ASSERT_TRUE(context_.settings().write(settings::accessoryDisconnectNotice, true));
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
  EXPECT_EQ(context_.activities().current(), ActivityKind::accessory);
  EXPECT_EQ(view.notice(), "routed");
  EXPECT_EQ(view.noticeAccessory()["name"], "Invented Buds");
  EXPECT_TRUE(sounds_->played.isEmpty());  // the sound itself is there now
  output_->setLevel(0.3);                  // the same output again
  EXPECT_EQ(notices.count(), 1);

  // Switched off, live.
  ASSERT_TRUE(context_.settings().write(settings::accessoryRouteNotice, false));
  output_->routeTo("invented-output", std::nullopt);
  output_->routeTo("bluez_output.0A_00_00_00_00_01.1", buds.address);
  EXPECT_EQ(notices.count(), 1);
  ASSERT_TRUE(context_.settings().write(settings::accessoryRouteNotice, true));

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
  ASSERT_TRUE(
      context_.settings().write(settings::accessoryBatteryStyle, AccessoryBatteryStyle::ring));
  EXPECT_EQ(view.batteryStyle(), "ring");
  ASSERT_TRUE(context_.settings().write(settings::accessoryLowThreshold, 90));
  EXPECT_EQ(view.lowThreshold(), 50);  // the highest threshold offered
  EXPECT_EQ(drawing.count(), 2);
}

// Each notice on the ears and the section, in both styles: the device's picture on the left, on
// the right its levels as numbers or rings, "Disconnected" in grey, the new output's name, and
// low parts in red.
TEST_F(AccessoryProviderTest, NoticesAndTheSectionAreDrawn) {
  AccessoryViewModel& view = *provider_->viewModel();
  const QUrl compact("qrc:/Tindra/power/AccessoryCompact.qml");
  const QUrl panel("qrc:/Tindra/power/AccessoriesPanel.qml");
  const PixelTest red = hueOf("#ff453a");
  const auto shot = [&](const AccessoryNotice& notice, const QString& name) {
    view.setNotice(notice);
    const QImage picture = viewShot(compact, &view, {260, 32}, name);
    EXPECT_GT(countPixels(picture, isDrawn, {0, 0, 40, 32}), 20) << name.toStdString();
    return picture;
  };
  const BluetoothAccessory buds = FakeAccessoryBackend::inventedBuds();
  view.setAccessories({buds, headphones(64)});
  const QImage connected =
      shot({AccessoryNotice::Kind::connected, buds, std::nullopt}, "accessory-connected");
  EXPECT_GT(countPixels(connected, near(Qt::white), rightHalf(connected)), 40);
  EXPECT_EQ(countPixels(connected, red), 0);
  const QImage gone = shot({AccessoryNotice::Kind::disconnected, headphones(64), std::nullopt},
                           "accessory-disconnected");
  EXPECT_GT(countPixels(gone, near("#a1a1a6"), rightHalf(gone)), 40);
  EXPECT_EQ(countPixels(gone, near(Qt::white), rightHalf(gone)), 0);
  const QImage routed =
      shot({AccessoryNotice::Kind::routed, buds, std::nullopt}, "accessory-routed");
  // "Playing on Invented Buds" reaches far further left than "L 80  R 76".
  EXPECT_GT(drawnArea(routed, rightHalf(routed)).width(),
            drawnArea(connected, rightHalf(connected)).width() + 40);
  const QImage low = shot({AccessoryNotice::Kind::low, headphones(9), AccessoryBatteryPart::main},
                          "accessory-low");
  EXPECT_GT(countPixels(low, red, rightHalf(low)), 20);
  const QImage numbers = viewShot(panel, &view, {170, 110}, "accessories-panel");
  EXPECT_EQ(countPixels(numbers, red), 0);

  view.setDrawing(AccessoryBatteryStyle::ring, 20);
  const QImage lowRing =
      shot({AccessoryNotice::Kind::low, headphones(9), AccessoryBatteryPart::main},
           "accessory-low-ring");
  EXPECT_GT(countPixels(lowRing, red, rightHalf(lowRing)), 20);
  EXPECT_GE(drawnArea(lowRing, rightHalf(lowRing)).height(), 18);  // a ring, not a number
  // Both earbuds' rings side by side, taller than a line of text.
  const QImage rings =
      shot({AccessoryNotice::Kind::connected, buds, std::nullopt}, "accessory-connected-ring");
  EXPECT_GE(drawnArea(rings, rightHalf(rings)).height(), 18);
  EXPECT_LT(drawnArea(connected, rightHalf(connected)).height(), 16);
  EXPECT_GT(countPixels(rings, isDrawn, {200, 0, 23, 32}), 40);
  EXPECT_GT(countPixels(rings, isDrawn, {226, 0, 23, 32}), 40);
  EXPECT_EQ(countPixels(rings, red), 0);
  // The earbuds' case at 15 % is low; the headphones at 64 % are not.
  BluetoothAccessory lowCase = buds;
  lowCase.battery.caseLevel = 15;
  view.setAccessories({lowCase, headphones(64)});
  const QImage ringPanel = viewShot(panel, &view, {170, 110}, "accessories-panel-ring");
  EXPECT_NE(ringPanel, numbers);
  EXPECT_GT(countPixels(ringPanel, red, {75, 35, 30, 30}), 50);  // the case's ring, the third
  EXPECT_EQ(countPixels(ringPanel, red), countPixels(ringPanel, red, {75, 35, 30, 30}));
}

}  // namespace
}  // namespace tindra
