// Runs in: private-session --offscreen
// GNOME's event sounds switch in a key file under the session's private config folder, changed
// by the real `gsettings` while the source follows it, and the choice of whose setting is read.
#include "levels/linux/gsettings_volume_sound_preference.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

#include "base/shared_backends.h"
#include "testing/skip_or_fail_on_ci.h"

namespace tindra {
namespace {

void setEventSounds(const char* value) {
  QProcess gsettings;
  gsettings.start(QStringLiteral("gsettings"),
                  {"set", "org.gnome.desktop.sound", "event-sounds", value});
  ASSERT_TRUE(gsettings.waitForFinished(10000));
  ASSERT_EQ(gsettings.exitCode(), 0) << gsettings.readAllStandardError().toStdString();
}

class GSettingsVolumeSoundPreferenceTest : public ::testing::Test {
 protected:
  void SetUp() override {
    // Shared with the `gsettings` above; set before anything here touches GSettings.
    qputenv("GSETTINGS_BACKEND", "keyfile");
    if (!GSettingsVolumeSoundPreference::available()) {
      SKIP_OR_FAIL_ON_CI("gsettings-desktop-schemas missing");
    }
  }
};

TEST_F(GSettingsVolumeSoundPreferenceTest, FollowsEventSoundsAsTheUserSwitchesThem) {
  setEventSounds("false");
  GSettingsVolumeSoundPreference source;
  EXPECT_EQ(source.systemSetting(), std::nullopt);  // unknown until started
  source.start();
  EXPECT_EQ(source.systemSetting(), false);
  EXPECT_EQ(source.check().outcome, DiagnosticsLog::Outcome::ok);
  setEventSounds("true");
  EXPECT_TRUE(QTest::qWaitFor([&] { return source.systemSetting() == true; }, 5000));
  setEventSounds("false");
  EXPECT_TRUE(QTest::qWaitFor([&] { return source.systemSetting() == false; }, 5000));
}

// Only the GNOME family plays its sounds by GNOME's switch; KDE has its own; the rest have none.
TEST_F(GSettingsVolumeSoundPreferenceTest, TheDesktopDecidesWhoseSettingIsRead) {
  SharedBackends shared;
  const auto decider = [&](const char* desktop) {
    qputenv("XDG_CURRENT_DESKTOP", desktop);
    return VolumeSoundPreference::forPlatform(shared)->check().text.english().toStdString();
  };
  EXPECT_NE(decider("ubuntu:GNOME").find("GNOME's event sounds"), std::string::npos);
  EXPECT_NE(decider("Budgie:GNOME").find("GNOME's event sounds"), std::string::npos);
  EXPECT_NE(decider("KDE").find("Plasma's volume applet"), std::string::npos);
  EXPECT_NE(decider("sway").find("Tindra's own setting"), std::string::npos);
  EXPECT_NE(decider("").find("Tindra's own setting"), std::string::npos);
  // A name that merely contains another is not that desktop.
  EXPECT_NE(decider("GNOMEish").find("Tindra's own setting"), std::string::npos);
  qunsetenv("XDG_CURRENT_DESKTOP");
}

}  // namespace
}  // namespace tindra
