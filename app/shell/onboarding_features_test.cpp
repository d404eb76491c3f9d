// What the introduction says was found: a feature's line follows its service's latest check and
// its switch, and never carries a check's raw words (paths, error names) to the user.

#include "shell/onboarding_features.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "base/logging_categories.h"
#include "settings/settings_keys.h"

namespace tindra {
namespace {

using Outcome = DiagnosticsLog::Outcome;

class OnboardingFeaturesTest : public ::testing::Test {
 protected:
  void check(const char* source, Outcome outcome, const char* text) {
    log_.record(lcApp(), QLatin1String(source), outcome,
                Sentence::verbatim(QString::fromUtf8(text)));
  }
  QStringList lines(bool systemBus = true) const {
    QStringList texts;
    for (const OnboardingFeatures::Line& line :
         OnboardingFeatures::describe(log_, store_, systemBus)) {
      texts << line.text;
    }
    return texts;
  }
  // The line that starts with `feature`, or an empty string.
  QString line(const QString& feature, bool systemBus = true) const {
    for (const QString& text : lines(systemBus)) {
      if (text.startsWith(feature)) return text;
    }
    return {};
  }

  QTemporaryDir dir_;
  SettingsStore store_{dir_.filePath("settings.json").toStdString(), [] { return 0.0; }};
  DiagnosticsLog log_;
};

TEST_F(OnboardingFeaturesTest, WithoutASystemBusBatteryAndBluetoothAreOneLineSayingWhatToDo) {
  check("media", Outcome::degraded,
        "testing the now-playing adapter /usr/libexec/tindra/tindra-mpris-adapter");
  check("battery", Outcome::failed,
        "no system bus (Failed to connect to socket /run/dbus/system_bus_socket: No such file)");
  check("accessories", Outcome::failed, "no system bus (Failed to connect to socket …)");
  const QStringList said = lines(false);
  EXPECT_TRUE(said.join('\n').contains(QStringLiteral("need the system bus (D-Bus)")))
      << said.join('\n').toStdString();
  EXPECT_EQ(line(QStringLiteral("Battery:"), false), QString());
  EXPECT_EQ(line(QStringLiteral("Bluetooth:"), false), QString());
  EXPECT_TRUE(line(QStringLiteral("Now Playing:"), false).contains(QStringLiteral("Install")));
  for (const QString& text : said) {
    EXPECT_FALSE(text.contains(QStringLiteral("/"))) << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("Failed"))) << text.toStdString();
  }
}

// The latest check decides, as the checks keep coming in; a service that has not answered yet
// has no line.
TEST_F(OnboardingFeaturesTest, EachFeatureFollowsItsLatestCheck) {
  EXPECT_EQ(line(QStringLiteral("Now Playing:")), QString());
  check("media", Outcome::degraded, "testing the adapter");
  EXPECT_TRUE(line(QStringLiteral("Now Playing:")).contains(QStringLiteral("Install")));
  check("media", Outcome::ok, "following the players");
  EXPECT_FALSE(line(QStringLiteral("Now Playing:")).contains(QStringLiteral("Install")));
  check("battery", Outcome::ok, "reading the battery from UPower");
  check("accessories", Outcome::degraded, "BlueZ is not running");
  EXPECT_TRUE(line(QStringLiteral("Battery:")).contains(QStringLiteral("plug in")));
  EXPECT_TRUE(line(QStringLiteral("Bluetooth:")).contains(QStringLiteral("BlueZ does not")));
  check("volume", Outcome::failed, "sound server not reachable: Connection refused");
  EXPECT_TRUE(line(QStringLiteral("Volume:")).contains(QStringLiteral("PipeWire")));
}

// The calendar and the weather are off until turned on: their lines say where, whatever their
// services said; turned on, their checks decide.
TEST_F(OnboardingFeaturesTest, SwitchedOffFeaturesSayWhereToTurnThemOn) {
  check("calendar", Outcome::degraded, "the calendar is off in Settings");
  check("weather", Outcome::failed, "no position");
  EXPECT_TRUE(line(QStringLiteral("Calendar:")).contains(QStringLiteral("Turn it on")));
  EXPECT_TRUE(line(QStringLiteral("Weather:")).contains(QStringLiteral("Turn it on")));
  ASSERT_TRUE(store_.write(settings::calendarEnabled, true));
  ASSERT_TRUE(store_.write(settings::weatherEnabled, true));
  EXPECT_TRUE(line(QStringLiteral("Calendar:")).contains(QStringLiteral("Add your calendars")));
  EXPECT_TRUE(line(QStringLiteral("Weather:")).contains(QStringLiteral("choose your place")));
  check("calendar", Outcome::ok, "2 calendars");
  EXPECT_TRUE(line(QStringLiteral("Calendar:")).contains(QStringLiteral("Join")));
}

}  // namespace
}  // namespace tindra
