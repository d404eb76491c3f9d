#include "lockscreen/lock_screen_provider.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "lockscreen/fake_lock_state_source.h"
#include "settings/settings_keys.h"
#include "testing/provider_test_context.h"

namespace tindra {
namespace {

using Event = LockScreenPresence::Event;

class LockScreenProviderTest : public ::testing::Test {
 protected:
  // A Tindra that starts on `boot`; the previous one's record, if any, is in the same folder.
  void launch(const std::string& boot) {
    auto source = std::make_unique<FakeLockStateSource>();
    source_ = source.get();
    provider_ = std::make_unique<LockScreenProvider>(
        context_, std::move(source),
        LockSessionGuard(context_.path().toStdString(), boot, "Debian 12"), [] { return 5000.0; });
    provider_->start();
  }
  std::optional<LockSessionRecord> record() const {
    const auto stored = DurableFile(context_.filePath("lock-session.json").toStdString()).read();
    if (!stored) return std::nullopt;
    const auto decoded = LockSessionRecord::decode(*stored);
    return decoded ? std::optional(*decoded) : std::nullopt;
  }

  ProviderTestContext context_;
  FakeLockStateSource* source_ = nullptr;
  std::unique_ptr<LockScreenProvider> provider_;
};

TEST_F(LockScreenProviderTest, EachLockedStretchIsAGuardedSessionAndTheNotchStepsAside) {
  launch("boot-1");
  ASSERT_EQ(record(), LockSessionRecord::fresh());
  QSignalSpy locked(provider_->viewModel(), &LockScreenViewModel::lockedChanged);

  source_->send(Event::locked);
  ASSERT_TRUE(record() && record()->openSession);
  EXPECT_EQ(record()->openSession->bootSessionID, "boot-1");
  EXPECT_EQ(record()->openSession->startedAt, 5000.0);
  source_->send(Event::screensaverStarted);
  EXPECT_TRUE(provider_->locked());
  source_->send(Event::unlocked);
  EXPECT_FALSE(provider_->locked());
  EXPECT_EQ(record(), LockSessionRecord::fresh());
  ASSERT_EQ(locked.count(), 2);
  EXPECT_EQ(locked[0][0].toBool(), true);
  EXPECT_EQ(locked[1][0].toBool(), false);
}

TEST_F(LockScreenProviderTest, AStopWhileLockedTurnsTheFeaturesOffWithANotice) {
  ASSERT_TRUE(context_.settings().write(settings::experimentalLockScreen, true));
  launch("boot-1");
  source_->send(Event::locked);
  provider_.reset();  // Tindra dies while the screen is locked

  launch("boot-1");
  EXPECT_FALSE(context_.settings().read(settings::experimentalLockScreen));
  const auto notice =
      LockScreenNotice::fromSettingText(context_.settings().read(settings::lockScreenNotice));
  ASSERT_TRUE(notice);
  EXPECT_EQ(notice->reason, LockScreenNotice::Reason::stoppedWhileLocked);
  EXPECT_EQ(context_.settings().read(settings::lockScreenNotchNotice), "");  // that one was off
  EXPECT_EQ(record(), LockSessionRecord::fresh());
}

TEST_F(LockScreenProviderTest, ARestartWhileLockedIsForgivenOnce) {
  ASSERT_TRUE(context_.settings().write(settings::lockScreenNotch, true));
  launch("boot-1");
  source_->send(Event::locked);
  launch("boot-2");
  EXPECT_TRUE(context_.settings().read(settings::lockScreenNotch));
  EXPECT_EQ(record()->restartStrikes, 1);
  source_->send(Event::locked);
  launch("boot-3");
  EXPECT_FALSE(context_.settings().read(settings::lockScreenNotch));
  EXPECT_EQ(
      LockScreenNotice::fromSettingText(context_.settings().read(settings::lockScreenNotchNotice))
          ->reason,
      LockScreenNotice::Reason::restartedWhileLocked);
}

}  // namespace
}  // namespace tindra
