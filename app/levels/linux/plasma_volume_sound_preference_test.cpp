// Runs in: private-session --offscreen
// Plasma's audio feedback switch read from plasmaparc in the session's private config folder,
// which another process rewrites, replaces and removes while the source follows it.
#include "levels/linux/plasma_volume_sound_preference.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

namespace tindra {
namespace {

TEST(PlasmaVolumeSoundPreferenceTest, ReadsTheSwitchOnlyFromTheGeneralGroup) {
  const auto read = [](const char* text) {
    return PlasmaVolumeSoundPreference::audioFeedbackIn(QByteArray(text));
  };
  EXPECT_TRUE(read(""));  // Plasma's default
  EXPECT_FALSE(read("[General]\nAudioFeedback=false\n"));
  EXPECT_FALSE(read("[General]\r\n  AudioFeedback = false \r\n"));
  EXPECT_FALSE(read("[General]\nAudioFeedback[$i]=false\n"));  // locked by the administrator
  EXPECT_FALSE(read("[General]\nAudioFeedback=true\nAudioFeedback=false\n"));  // the last wins
  // Other groups, other keys, comments and a key that only begins the same are not the switch.
  EXPECT_TRUE(read("[General][Devices]\nAudioFeedback=false\n"));
  EXPECT_TRUE(read("[Other]\nAudioFeedback=false\n[General]\nVolumeStep=5\n"));
  EXPECT_TRUE(read("[General]\n# AudioFeedback=false\nAudioFeedbackSound=false\n"));
  EXPECT_TRUE(read("[General]\nAudioFeedback=maybe\n"));  // unreadable: the default
}

// Another process writes the file, as Plasma's settings do: in place, by an atomic rename, and
// by removing it.
void runElsewhere(const QString& command) {
  QProcess shell;
  shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
  ASSERT_TRUE(shell.waitForFinished(5000));
  ASSERT_EQ(shell.exitCode(), 0);
}

TEST(PlasmaVolumeSoundPreferenceTest, FollowsTheFileAsPlasmaRewritesIt) {
  const QString file = PlasmaVolumeSoundPreference::defaultFile();
  ASSERT_TRUE(file.startsWith(qEnvironmentVariable("XDG_CONFIG_HOME")));  // the private one
  runElsewhere(QStringLiteral("rm -f '%1'").arg(file));
  PlasmaVolumeSoundPreference source;
  source.start();
  EXPECT_EQ(source.systemSetting(), true);
  const auto becomes = [&](bool value) {
    return QTest::qWaitFor([&] { return source.systemSetting() == value; }, 2000);
  };

  runElsewhere(QStringLiteral("printf '[General]\\nAudioFeedback=false\\n' > '%1'").arg(file));
  EXPECT_TRUE(becomes(false)) << "made";
  runElsewhere(QStringLiteral("printf '[General]\\nAudioFeedback=true\\n' > '%1.new' && "
                              "mv '%1.new' '%1'")
                   .arg(file));
  EXPECT_TRUE(becomes(true)) << "replaced";
  runElsewhere(QStringLiteral("printf '[General]\\nVolumeStep=5\\nAudioFeedback=false\\n' >> '%1'")
                   .arg(file));
  EXPECT_TRUE(becomes(false)) << "written in place";
  runElsewhere(QStringLiteral("rm '%1'").arg(file));
  EXPECT_TRUE(becomes(true)) << "removed";
}

}  // namespace
}  // namespace tindra
