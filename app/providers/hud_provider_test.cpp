#include "providers/hud_provider.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "activity_center.h"
#include "diagnostics/diagnostics_log.h"
#include "platform/fake/fake_volume_backend.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"
#include "testing/manual_one_shot_scheduler.h"

namespace tindra {
namespace {

TEST(HudProviderTest, OnlyARealChangeOfTheSameOutputShowsTheLevel) {
  QTemporaryDir dir;
  SettingsStore settings(dir.filePath("settings.json").toStdString(), [] { return 0.0; });
  auto* expiry = new ManualOneShotScheduler;
  ActivityCenter activities(
      settings, [] { return 0.0; }, std::unique_ptr<OneShotScheduler>(expiry));
  DiagnosticsLog diagnostics;
  auto owned = std::make_unique<FakeVolumeBackend>();
  FakeVolumeBackend& volume = *owned;
  HudProvider provider({activities, settings, diagnostics}, std::move(owned));

  provider.start();  // the first reading shows nothing
  EXPECT_EQ(activities.current(), ActivityKind::idle);
  EXPECT_EQ(provider.viewModel()->percent(), 60);

  volume.publish(VolumeReading{"invented-output", 0.6, true, AudioTransport::builtIn});
  EXPECT_EQ(activities.current(), ActivityKind::hud);
  EXPECT_EQ(expiry->aimed(), 1.5);
  EXPECT_EQ(provider.viewModel()->level(), 0);  // muted: an empty bar
  activities.reset();

  // Another output (headphones plugged in) is followed without a show.
  volume.publish(VolumeReading{"headphones", 0.3, false, AudioTransport::usb});
  EXPECT_EQ(activities.current(), ActivityKind::idle);
  EXPECT_EQ(provider.viewModel()->percent(), 30);

  ASSERT_TRUE(settings.write(settings::volumeHUDEnabled, false));
  volume.setLevel(0.4);
  EXPECT_EQ(activities.current(), ActivityKind::idle);
  EXPECT_EQ(provider.viewModel()->percent(), 40);
}

}  // namespace
}  // namespace tindra
