#include "providers/accessory_provider.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "activity_center.h"
#include "platform/fake/fake_accessory_backend.h"
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
    provider_ = std::make_unique<AccessoryProvider>(
        ProviderContext{activities_, settings_, diagnostics_}, std::move(backend), sounds_);
  }

  QTemporaryDir dir_;
  SettingsStore settings_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  ActivityCenter activities_{settings_};
  DiagnosticsLog diagnostics_;
  std::shared_ptr<RecordedSounds> sounds_ = std::make_shared<RecordedSounds>();
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

// Each notice on the ears and the section, to be looked at; the low part in red.
TEST_F(AccessoryProviderTest, NoticesAndTheSectionAreDrawn) {
  AccessoryViewModel& view = *provider_->viewModel();
  const QUrl compact("qrc:/Tindra/qml/AccessoryCompact.qml");
  const BluetoothAccessory buds = FakeAccessoryBackend().connected().front();
  view.setAccessories({buds, headphones(64)});
  view.setNotice({AccessoryNotice::Kind::connected, buds, std::nullopt});
  EXPECT_FALSE(viewShot(compact, &view, {260, 32}, "accessory-connected").isNull());
  view.setNotice({AccessoryNotice::Kind::disconnected, headphones(64), std::nullopt});
  EXPECT_FALSE(viewShot(compact, &view, {260, 32}, "accessory-disconnected").isNull());
  view.setNotice({AccessoryNotice::Kind::low, headphones(9), AccessoryBatteryPart::main});
  const QImage low = viewShot(compact, &view, {260, 32}, "accessory-low");
  int red = 0;
  for (int y = 0; y < low.height(); ++y) {
    for (int x = low.width() / 2; x < low.width(); ++x) {
      const QColor c = low.pixelColor(x, y);
      red += c.red() > 200 && c.green() < 120 ? 1 : 0;
    }
  }
  EXPECT_GT(red, 20);
  EXPECT_FALSE(
      viewShot(QUrl("qrc:/Tindra/qml/AccessoriesPanel.qml"), &view, {170, 110}, "accessories-panel")
          .isNull());
}

}  // namespace
}  // namespace tindra
