#include "providers/battery_provider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>

#include "activity_center.h"
#include "platform/fake/fake_battery_backend.h"
#include "settings/settings_store.h"

namespace tindra {
namespace {

class BatteryProviderTest : public ::testing::Test {
 protected:
  BatteryProviderTest() {
    auto backend = std::make_unique<FakeBatteryBackend>();
    backend_ = backend.get();
    provider_ = std::make_unique<BatteryProvider>(
        ProviderContext{activities_, settings_, diagnostics_}, std::move(backend));
  }

  QTemporaryDir dir_;
  SettingsStore settings_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  ActivityCenter activities_{settings_};
  DiagnosticsLog diagnostics_;
  FakeBatteryBackend* backend_ = nullptr;
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
  EXPECT_TRUE(diagnostics_.entries().front().text.contains("invented"));

  backend_->setCheck({DiagnosticsLog::Outcome::degraded, "the service went away"});
  backend_->setCheck({DiagnosticsLog::Outcome::degraded, "the service went away"});
  ASSERT_EQ(diagnostics_.entries().size(), 2);
  EXPECT_EQ(diagnostics_.entries().back().outcome, DiagnosticsLog::Outcome::degraded);
}

}  // namespace
}  // namespace tindra
