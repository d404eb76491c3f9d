#include "lockscreen/lock_screen_presence.h"

namespace tindra {

using Action = LockScreenPresence::Action;
using Event = LockScreenPresence::Event;

std::vector<Action> LockScreenPresence::handle(Event event) {
  switch (event) {
    case Event::locked:
      isLocked = true;
      break;
    case Event::unlocked:
      isLocked = false;
      isScreensaverRunning = false;
      isShowBlocked = false;
      break;
    case Event::screensaverStarted:
      isScreensaverRunning = true;
      break;
    case Event::screensaverStopped:
      isScreensaverRunning = false;
      break;
  }
  return reconcile();
}

std::vector<Action> LockScreenPresence::reconcile() {
  std::vector<Action> actions;
  if (isLocked && !isScreensaverRunning) {
    if (isShown || isShowBlocked) return actions;
    if (!isSessionOpen) {
      isSessionOpen = true;
      actions.push_back(Action::beginSession);
    }
    isShown = true;
    actions.push_back(Action::show);
    return actions;
  }
  if (isShown) {
    isShown = false;
    actions.push_back(Action::hide);
  }
  if (isLocked) return actions;  // under the screensaver the session stays open
  if (isSessionOpen) {
    isSessionOpen = false;
    actions.push_back(Action::endSession);
  }
  return actions;
}

std::vector<Action> LockScreenPresence::blockShowing() {
  isShowBlocked = true;
  if (!isShown) return {};
  isShown = false;
  return {Action::hide};
}

std::vector<Action> LockScreenPresence::tearDown() {
  std::vector<Action> actions;
  if (isShown) actions.push_back(Action::hide);
  if (isSessionOpen) actions.push_back(Action::endSession);
  *this = LockScreenPresence();
  return actions;
}

}  // namespace tindra
