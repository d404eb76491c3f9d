#include "power/battery_provider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>

#include "base/activity_center.h"
#include "power/fake_battery_backend.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "testing/recorded_sounds.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

class BatteryProviderTest : public ::testing::Test {
 protected:
  BatteryProviderTest() {
    auto backend = std::make_unique<FakeBatteryBackend>();
    backend_ = backend.get();
    provider_ = std::make_unique<BatteryProvider>(
        ProviderContext{activities_, settings_, diagnostics_}, std::move(backend), sounds_);
  }

  static BatteryStatus onBattery(int percent) {
    return BatteryStatus(percent, false, false, false);
  }
  static BatteryStatus charging(int percent) { return BatteryStatus(percent, true, true, false); }

  QTemporaryDir dir_;
  SettingsStore settings_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  ActivityCenter activities_{settings_};
  DiagnosticsLog diagnostics_;
  FakeBatteryBackend* backend_ = nullptr;
  std::shared_ptr<RecordedSounds> sounds_ = std::make_shared<RecordedSounds>();
  std::unique_ptr<BatteryProvider> provider_;
};

TEST_F(BatteryProviderTest, ViewModelFollowsReadingsAndSignalsOnlyRealChanges) {
  BatteryViewModel& view = *provider_->viewModel();
  EXPECT_FALSE(view.available());
  provider_->start();
  EXPECT_TRUE(view.available());
  EXPECT_EQ(view.percent(), 76);
  EXPECT_EQ(view.minutesLeft(), 192);

  QSignalSpy changes(&view, &BatteryViewModel::changed);
  backend_->setReading(BatteryStatus(76, false, false, false, 192));  // the same reading
  backend_->setReading(BatteryStatus(77, true, true, false, 192, std::nullopt));
  EXPECT_TRUE(view.charging() && view.pluggedIn());
  EXPECT_EQ(view.minutesLeft(), -1);  // charging, and no time to full known
  backend_->setReading(std::nullopt);
  EXPECT_FALSE(view.available());
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(BatteryProviderTest, EveryChangeOfTheServiceCheckReachesDiagnostics) {
  provider_->start();
  ASSERT_EQ(diagnostics_.entries().size(), 1);
  EXPECT_EQ(diagnostics_.entries().front().source, "battery");
  EXPECT_TRUE(diagnostics_.entries().front().text.english().contains("invented"));

  backend_->setCheck(DiagnosticsLog::Outcome::degraded,
                     Sentence::verbatim("the service went away"));
  backend_->setCheck(DiagnosticsLog::Outcome::degraded,
                     Sentence::verbatim("the service went away"));
  ASSERT_EQ(diagnostics_.entries().size(), 2);
  EXPECT_EQ(diagnostics_.entries().back().outcome, DiagnosticsLog::Outcome::degraded);
}

TEST_F(BatteryProviderTest, PowerChangesAndTheLowWarningBecomeNoticesWithTheirSounds) {
  provider_->start();  // 76 % on battery: the first reading is no change of power
  BatteryViewModel& view = *provider_->viewModel();
  EXPECT_EQ(activities_.current(), ActivityKind::idle);

  backend_->setReading(charging(76));
  EXPECT_EQ(activities_.current(), ActivityKind::batteryAlert);
  EXPECT_EQ(view.notice(), "pluggedIn");
  EXPECT_EQ(sounds_->played, QStringList{"tindra-charging"});
  activities_.reset();

  backend_->setReading(onBattery(76));
  EXPECT_EQ(view.notice(), "unplugged");  // no sound for this one
  backend_->setReading(onBattery(21));
  backend_->setReading(onBattery(20));
  EXPECT_EQ(view.notice(), "low");
  EXPECT_EQ(view.noticePercent(), 20);
  EXPECT_EQ(sounds_->played, (QStringList{"tindra-charging", "tindra-low-battery"}));
  QSignalSpy notices(&view, &BatteryViewModel::noticeChanged);
  backend_->setReading(onBattery(19));  // warned once until charged
  EXPECT_EQ(notices.count(), 0);

  ASSERT_TRUE(settings_.write(settings::playSounds, false));
  ASSERT_TRUE(settings_.write(settings::batteryPluggedInNotice, false));
  backend_->setReading(charging(19));  // the setting is off: no notice, but the warning re-arms
  EXPECT_EQ(notices.count(), 0);
  backend_->setReading(onBattery(19));
  EXPECT_EQ(view.notice(), "low");
  EXPECT_EQ(sounds_->played.size(), 2);  // sounds are off
}

// Each notice drawn on the ears, and the panel section with low power mode; the low warning in
// red, power connected in green.
TEST_F(BatteryProviderTest, NoticesAndTheSectionAreDrawn) {
  BatteryViewModel& view = *provider_->viewModel();
  const auto redAndGreen = [](const QImage& picture) {
    int red = 0, green = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QColor c = picture.pixelColor(x, y);
        red += c.red() > 200 && c.green() < 120 ? 1 : 0;
        green += c.green() > 160 && c.red() < 120 ? 1 : 0;
      }
    }
    return std::pair{red, green};
  };
  const QUrl compact("qrc:/Tindra/power/BatteryCompact.qml");
  view.setReading(charging(64));
  view.setNotice(BatteryNotice::pluggedIn(charging(64)));
  EXPECT_GT(redAndGreen(viewShot(compact, &view, {260, 32}, "battery-plugged-in")).second, 20);
  view.setNotice(BatteryNotice::unplugged(onBattery(64)));
  EXPECT_FALSE(viewShot(compact, &view, {260, 32}, "battery-unplugged").isNull());
  view.setNotice(BatteryNotice::low(onBattery(19)));
  EXPECT_GT(redAndGreen(viewShot(compact, &view, {260, 32}, "battery-low")).first, 20);
  view.setReading(BatteryStatus(19, false, false, false, 47, std::nullopt, true));
  EXPECT_FALSE(
      viewShot(QUrl("qrc:/Tindra/power/BatteriesPanel.qml"), &view, {140, 150}, "batteries-panel")
          .isNull());
}

TEST_F(BatteryProviderTest, TheOldPowerNoticeSettingIsSplitOnce) {
  ASSERT_TRUE(settings_.writeStored("batteryPowerNotices", JSONValue(false)));
  ASSERT_TRUE(settings_.write(settings::batteryUnpluggedNotice, true));
  provider_->start();
  EXPECT_FALSE(settings_.read(settings::batteryPluggedInNotice));
  EXPECT_TRUE(settings_.read(settings::batteryUnpluggedNotice));  // the user's own choice stays
  EXPECT_EQ(settings_.stored("batteryPowerNotices"), nullptr);
}

}  // namespace
}  // namespace tindra
