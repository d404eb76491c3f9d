#include "base/settings_file_watcher.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {
namespace {

// Runs a shell command in another process, as another program editing the file would.
void runElsewhere(const QString& command) {
  QProcess shell;
  shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
  ASSERT_TRUE(shell.waitForFinished(5000));
  ASSERT_EQ(shell.exitCode(), 0);
}

TEST(SettingsFileWatcherTest, ChangesWrittenByAnotherProcessReachObservers) {
  QTemporaryDir dir;
  // The folder does not exist yet: the watcher makes it, so the first save is seen too.
  const QString file = dir.filePath(QStringLiteral("tindra/settings.json"));
  SettingsStore store(file.toStdString(), [] { return 0.0; });
  SettingsFileWatcher watcher(store);
  std::vector<double> seen;
  SettingsObservation observation = store.observe(
      {std::string(settings::hoverOpenDelay.name)},
      [&](std::string_view) { seen.push_back(store.read(settings::hoverOpenDelay)); });

  // An atomic save: written aside, then renamed over the file.
  runElsewhere(QStringLiteral("printf '{\"hoverOpenDelay\": 0.4}' > '%1.new' && mv '%1.new' '%1'")
                   .arg(file));
  ASSERT_TRUE(QTest::qWaitFor([&] { return seen.size() == 1; }, 1000));
  EXPECT_EQ(seen.back(), 0.4);

  // Saved again the same way: the replaced file is still watched.
  runElsewhere(QStringLiteral("printf '{\"hoverOpenDelay\": 0.6}' > '%1.new' && mv '%1.new' '%1'")
                   .arg(file));
  ASSERT_TRUE(QTest::qWaitFor([&] { return seen.size() == 2; }, 1000));
  EXPECT_EQ(seen.back(), 0.6);

  // Edited in place, as a text editor may do.
  runElsewhere(QStringLiteral("printf '{\"hoverOpenDelay\": 0.8}' > '%1'").arg(file));
  ASSERT_TRUE(QTest::qWaitFor([&] { return seen.size() == 3; }, 1000));
  EXPECT_EQ(seen.back(), 0.8);

  // Removed: every key reads its default again.
  runElsewhere(QStringLiteral("rm '%1'").arg(file));
  ASSERT_TRUE(QTest::qWaitFor([&] { return seen.size() == 4; }, 1000));
  EXPECT_EQ(seen.back(), settings::hoverOpenDelay.defaultValue);

  // A change of another key tells this key's observers nothing.
  runElsewhere(QStringLiteral("printf '{\"playSounds\": false}' > '%1'").arg(file));
  QTest::qWait(300);
  EXPECT_EQ(seen.size(), 4u);
  EXPECT_FALSE(store.read(settings::playSounds));
}

}  // namespace
}  // namespace tindra
