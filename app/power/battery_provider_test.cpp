#include "power/battery_provider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "power/fake_battery_backend.h"
#include "settings/settings_keys.h"
#include "testing/picture_checks.h"
#include "testing/provider_test_context.h"
#include "testing/recorded_sounds.h"
#include "testing/view_shot.h"

namespace tindra {
namespace {

class BatteryProviderTest : public ::testing::Test {
 protected:
  BatteryProviderTest() {
    auto backend = std::make_unique<FakeBatteryBackend>();
    backend_ = backend.get();
    provider_ = std::make_unique<BatteryProvider>(context_, std::move(backend), sounds_);
  }

  static BatteryStatus onBattery(int percent) {
    return BatteryStatus(percent, false, false, false);
  }
  static BatteryStatus charging(int percent) { return BatteryStatus(percent, true, true, false); }

  ProviderTestContext context_;
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
  ASSERT_EQ(context_.diagnostics().entries().size(), 1);
  EXPECT_EQ(context_.diagnostics().entries().front().source, "battery");
  EXPECT_TRUE(context_.diagnostics().entries().front().text.english().contains("invented"));

  backend_->setCheck(DiagnosticsLog::Outcome::degraded,
                     Sentence::verbatim("the service went away"));
  backend_->setCheck(DiagnosticsLog::Outcome::degraded,
                     Sentence::verbatim("the service went away"));
  ASSERT_EQ(context_.diagnostics().entries().size(), 2);
  EXPECT_EQ(context_.diagnostics().entries().back().outcome, DiagnosticsLog::Outcome::degraded);
}

TEST_F(BatteryProviderTest, PowerChangesAndTheLowWarningBecomeNoticesWithTheirSounds) {
  provider_->start();  // 76 % on battery: the first reading is no change of power
  BatteryViewModel& view = *provider_->viewModel();
  EXPECT_EQ(context_.activities().current(), ActivityKind::idle);

  backend_->setReading(charging(76));
  EXPECT_EQ(context_.activities().current(), ActivityKind::batteryAlert);
  EXPECT_EQ(view.notice(), "pluggedIn");
  EXPECT_EQ(sounds_->played, QStringList{"tindra-charging"});
  context_.activities().reset();

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

  ASSERT_TRUE(context_.settings().write(settings::playSounds, false));
  ASSERT_TRUE(context_.settings().write(settings::batteryPluggedInNotice, false));
  backend_->setReading(charging(19));  // the setting is off: no notice, but the warning re-arms
  EXPECT_EQ(notices.count(), 0);
  backend_->setReading(onBattery(19));
  EXPECT_EQ(view.notice(), "low");
  EXPECT_EQ(sounds_->played.size(), 2);  // sounds are off
}

// Each notice drawn on the ears, and the panel section with low power mode. Power connected is
// green, the low warning red, on the battery's fill and on the percentage alike; disconnected
// has neither.
TEST_F(BatteryProviderTest, NoticesAndTheSectionAreDrawn) {
  BatteryViewModel& view = *provider_->viewModel();
  const QUrl compact("qrc:/Tindra/power/BatteryCompact.qml");
  const PixelTest green = hueOf("#30d158"), red = hueOf("#ff453a");
  const auto shot = [&](const BatteryNotice& notice, const QString& name) {
    view.setNotice(notice);
    return viewShot(compact, &view, {260, 32}, name);
  };
  view.setReading(charging(64));
  const QImage pluggedIn = shot(BatteryNotice::pluggedIn(charging(64)), "battery-plugged-in");
  EXPECT_GT(countPixels(pluggedIn, green, leftHalf(pluggedIn)), 20);
  EXPECT_GT(countPixels(pluggedIn, green, rightHalf(pluggedIn)), 20);
  EXPECT_EQ(countPixels(pluggedIn, red), 0);

  const QImage unplugged = shot(BatteryNotice::unplugged(onBattery(64)), "battery-unplugged");
  EXPECT_GT(countPixels(unplugged, near(Qt::white), leftHalf(unplugged)), 10);
  EXPECT_GT(countPixels(unplugged, near(Qt::white), rightHalf(unplugged)), 20);
  EXPECT_EQ(countPixels(unplugged, green) + countPixels(unplugged, red), 0);

  const QImage low = shot(BatteryNotice::low(onBattery(19)), "battery-low");
  EXPECT_GT(countPixels(low, red, leftHalf(low)), 10);
  EXPECT_GT(countPixels(low, red, rightHalf(low)), 20);
  // "Low  19 %": a word more than the percentage alone.
  EXPECT_GT(drawnArea(low, rightHalf(low)).width(),
            drawnArea(unplugged, rightHalf(unplugged)).width() + 15);

  view.setReading(BatteryStatus(19, false, false, false, 47, std::nullopt, true));
  const QImage panel =
      viewShot(QUrl("qrc:/Tindra/power/BatteriesPanel.qml"), &view, {140, 150}, "batteries-panel");
  EXPECT_GT(countPixels(panel, red, {0, 15, 60, 30}), 50);  // 19 %: the low fill
  // Title, glyph, percentage, time left, then low power mode in yellow at the bottom.
  const QRect lowPower = drawnArea(panel, {0, 100, 140, 50});
  EXPECT_GT(countPixels(panel, hueOf("#ffd60a"), lowPower), 30);
  EXPECT_GT(lowPower.width(), 80);
}

TEST_F(BatteryProviderTest, TheOldPowerNoticeSettingIsSplitOnce) {
  ASSERT_TRUE(context_.settings().writeStored("batteryPowerNotices", JSONValue(false)));
  ASSERT_TRUE(context_.settings().write(settings::batteryUnpluggedNotice, true));
  provider_->start();
  EXPECT_FALSE(context_.settings().read(settings::batteryPluggedInNotice));
  EXPECT_TRUE(
      context_.settings().read(settings::batteryUnpluggedNotice));  // the user's own choice stays
  EXPECT_EQ(context_.settings().stored("batteryPowerNotices"), nullptr);
}

}  // namespace
}  // namespace tindra
