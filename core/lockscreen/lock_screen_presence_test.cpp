#include "lockscreen/lock_screen_presence.h"

#include <gtest/gtest.h>

namespace tindra {
namespace {

using Event = LockScreenPresence::Event;
using Action = LockScreenPresence::Action;
using Actions = std::vector<Action>;

TEST(LockScreenPresenceTest, ScreensaverHidesButKeepsTheSessionOpen) {
  LockScreenPresence presence;
  EXPECT_EQ(presence.handle(Event::locked), (Actions{Action::beginSession, Action::show}));
  EXPECT_EQ(presence.handle(Event::screensaverStarted), (Actions{Action::hide}));
  EXPECT_TRUE(presence.isSessionOpen);
  EXPECT_EQ(presence.handle(Event::screensaverStopped), (Actions{Action::show}));
  EXPECT_EQ(presence.handle(Event::unlocked), (Actions{Action::hide, Action::endSession}));
  EXPECT_EQ(presence, LockScreenPresence());
  // Unlocking under a running screensaver ends the session that stayed open.
  presence.handle(Event::locked);
  presence.handle(Event::screensaverStarted);
  EXPECT_EQ(presence.handle(Event::unlocked), (Actions{Action::endSession}));
}

TEST(LockScreenPresenceTest, RepeatedAndStrayEventsDoNothing) {
  LockScreenPresence presence;
  EXPECT_EQ(presence.handle(Event::unlocked), Actions{});
  EXPECT_EQ(presence.handle(Event::screensaverStopped), Actions{});
  // A screensaver before the lock opens nothing until the screensaver stops.
  EXPECT_EQ(presence.handle(Event::screensaverStarted), Actions{});
  EXPECT_EQ(presence.handle(Event::locked), Actions{});
  EXPECT_FALSE(presence.isSessionOpen);
  EXPECT_EQ(presence.handle(Event::screensaverStopped),
            (Actions{Action::beginSession, Action::show}));
  EXPECT_EQ(presence.handle(Event::locked), Actions{});
  EXPECT_EQ(presence.handle(Event::screensaverStopped), Actions{});
}

TEST(LockScreenPresenceTest, BlockedShowingLastsUntilTheUnlock) {
  LockScreenPresence presence;
  presence.handle(Event::locked);
  EXPECT_EQ(presence.blockShowing(), (Actions{Action::hide}));
  EXPECT_EQ(presence.handle(Event::screensaverStarted), Actions{});
  EXPECT_EQ(presence.handle(Event::screensaverStopped), Actions{});
  EXPECT_EQ(presence.handle(Event::unlocked), (Actions{Action::endSession}));
  EXPECT_FALSE(presence.isShowBlocked);
  EXPECT_EQ(presence.handle(Event::locked), (Actions{Action::beginSession, Action::show}));
}

TEST(LockScreenPresenceTest, TearDownClosesEverything) {
  LockScreenPresence presence;
  presence.handle(Event::locked);
  EXPECT_EQ(presence.tearDown(), (Actions{Action::hide, Action::endSession}));
  EXPECT_EQ(presence, LockScreenPresence());
  presence.handle(Event::locked);
  presence.handle(Event::screensaverStarted);
  EXPECT_EQ(presence.tearDown(), (Actions{Action::endSession}));
  EXPECT_EQ(presence.tearDown(), Actions{});
}

}  // namespace
}  // namespace tindra
