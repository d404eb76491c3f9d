// Runs in: private-session --offscreen
#include "levels/linux/bus_level_command_source.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

#include "levels/fake_backlight_backend.h"
#include "levels/fake_media_key_source.h"
#include "levels/fake_volume_backend.h"
#include "levels/hud_provider.h"
#include "settings/settings_keys.h"
#include "testing/provider_test_context.h"

namespace tindra {
namespace {

struct Ran {
  int exitCode = -1;
  QString said;
};

// `tindra level …` as a desktop's key binding runs it: the built program, in a process of its
// own, while this one answers as the running Tindra.
Ran level(const QStringList& arguments) {
  QProcess command;
  command.start(QStringLiteral(TINDRA_BINARY), QStringList{QStringLiteral("level")} + arguments);
  EXPECT_TRUE(QTest::qWaitFor([&] { return command.state() == QProcess::NotRunning; }, 10000));
  return {command.exitCode(), QString::fromUtf8(command.readAllStandardError())};
}

class LevelCommandTest : public ::testing::Test {
 protected:
  void SetUp() override {
    auto volume = std::make_unique<FakeVolumeBackend>();
    auto display = std::make_unique<FakeBacklightBackend>("panel", 0.5);
    volume_ = volume.get();
    display_ = display.get();
    auto commands = std::make_unique<BusLevelCommandSource>(QDBusConnection::sessionBus());
    commands_ = commands.get();
    provider_ = std::make_unique<HudProvider>(
        context_, HudBackends{std::move(volume), std::move(display),
                              std::make_unique<FakeBacklightBackend>("keyboard", 0.5),
                              std::make_unique<FakeMediaKeySource>(), std::move(commands)});
    provider_->start();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return commands_->check().text.english().contains("step"); }));
  }

  ProviderTestContext context_;
  FakeVolumeBackend* volume_ = nullptr;
  FakeBacklightBackend* display_ = nullptr;
  BusLevelCommandSource* commands_ = nullptr;
  std::unique_ptr<HudProvider> provider_;
};

TEST_F(LevelCommandTest, CommandsStepTheLevelsAsTheirKeysWouldAndSayWhenTheyCannot) {
  ASSERT_EQ(volume_->reading()->level, 0.6);
  // Up to the next sixteenth, as the key goes; a fine step is a quarter of one.
  EXPECT_EQ(level({"volume", "up"}).exitCode, 0);
  EXPECT_DOUBLE_EQ(volume_->reading()->level, 10.0 / 16);
  EXPECT_EQ(context_.activities().current(), ActivityKind::hud);
  EXPECT_EQ(level({"volume", "down", "--fine"}).exitCode, 0);
  EXPECT_DOUBLE_EQ(volume_->reading()->level, 10.0 / 16 - 1.0 / 64);
  EXPECT_EQ(level({"volume", "mute"}).exitCode, 0);
  EXPECT_TRUE(volume_->reading()->muted);
  EXPECT_EQ(level({"brightness", "down"}).exitCode, 0);
  EXPECT_LT(display_->reading()->level, 0.5);

  // Turned off in Settings, the key is the desktop's: nothing changes, and the command says so.
  ASSERT_TRUE(context_.settings().write(settings::volumeHUDEnabled, false));
  const double before = volume_->reading()->level;
  const Ran refused = level({"volume", "up"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.said.contains("leaves this key to the desktop"))
      << refused.said.toStdString();
  EXPECT_EQ(volume_->reading()->level, before);
}

TEST_F(LevelCommandTest, WrongUseAndNoTindraRunningAreSaid) {
  for (const QStringList& wrong : {QStringList{"volume"}, QStringList{"volume", "mute", "--fine"},
                                   QStringList{"colour", "up"}}) {
    const Ran ran = level(wrong);
    EXPECT_EQ(ran.exitCode, 2) << wrong.join(' ').toStdString();
    EXPECT_TRUE(ran.said.startsWith("usage: tindra level"));
  }
  provider_.reset();  // the running Tindra quits and gives its name up
  const Ran ran = level({"volume", "up"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_TRUE(ran.said.contains("not running")) << ran.said.toStdString();
}

}  // namespace
}  // namespace tindra
