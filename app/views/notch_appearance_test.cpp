#include "views/notch_appearance.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>

#include "activity/notch_color_style.h"
#include "settings/settings_keys.h"

namespace tindra {
namespace {

TEST(NotchAppearanceTest, ColoursFollowTheSettingsAsTheyChange) {
  QTemporaryDir dir;
  SettingsStore settings(dir.filePath("settings.json").toStdString(), [] { return 0.0; });
  NotchAppearance appearance(&settings);
  QSignalSpy changed(&appearance, &NotchAppearance::changed);
  const QColor pink(0xff, 0x37, 0x5f);

  // Black and white by default, with coloured bars.
  EXPECT_EQ(appearance.tint(pink), QColor(Qt::white));
  EXPECT_EQ(appearance.bar(pink), pink);
  EXPECT_FALSE(appearance.tint(QColor()).isValid());  // nothing to draw stays nothing

  ASSERT_TRUE(settings.write(settings::notchColorStyle, NotchColorStyle::colorful));
  ASSERT_TRUE(settings.write(settings::auraColorfulBars, false));
  EXPECT_EQ(appearance.tint(pink), pink);
  EXPECT_EQ(appearance.bar(pink), QColor(Qt::white));
  EXPECT_EQ(changed.count(), 2);

  ASSERT_TRUE(settings.write(settings::glassBackground, true));
  ASSERT_TRUE(settings.write(settings::auraRimWhenClosed, false));
  EXPECT_TRUE(appearance.glass());
  EXPECT_FALSE(appearance.rimWhenClosed());
  EXPECT_TRUE(appearance.glowWhenOpen());
}

}  // namespace
}  // namespace tindra
