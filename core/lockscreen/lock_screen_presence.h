// LockScreenPresence: turns lock and screensaver events into the actions that open and close a
// guarded lock-screen session and show or hide its content. The content shows only while locked
// with no screensaver; a screensaver hides it but keeps the session open until the unlock.
#pragma once

#include <string_view>
#include <vector>

#include "base/enum_table.h"

namespace tindra {

struct LockScreenPresence {
  enum class Event { locked, unlocked, screensaverStarted, screensaverStopped };
  enum class Action { beginSession, show, hide, endSession };

  bool isLocked = false;
  bool isScreensaverRunning = false;
  bool isSessionOpen = false;
  bool isShown = false;
  bool isShowBlocked = false;  // set by blockShowing(), cleared by the next unlock

  // Updates the flags for `event` and returns the actions to carry out, in order.
  std::vector<Action> handle(Event event);
  // Hides the content until the next unlock (the user dismissed it, or the features were turned
  // off while locked); the session stays open so the unlock still ends it.
  std::vector<Action> blockShowing();
  // The actions that close everything (hide, then end the session); all flags become false.
  std::vector<Action> tearDown();

  friend bool operator==(const LockScreenPresence&, const LockScreenPresence&) = default;

 private:
  std::vector<Action> reconcile();
};

template <>
struct EnumTable<LockScreenPresence::Event> {
  using Event = LockScreenPresence::Event;
  static constexpr std::array cases{EnumCase{Event::locked, "locked"},
                                    EnumCase{Event::unlocked, "unlocked"},
                                    EnumCase{Event::screensaverStarted, "screensaverStarted"},
                                    EnumCase{Event::screensaverStopped, "screensaverStopped"}};
};

template <>
struct EnumTable<LockScreenPresence::Action> {
  using Action = LockScreenPresence::Action;
  static constexpr std::array cases{EnumCase{Action::beginSession, "beginSession"},
                                    EnumCase{Action::show, "show"}, EnumCase{Action::hide, "hide"},
                                    EnumCase{Action::endSession, "endSession"}};
};

}  // namespace tindra
