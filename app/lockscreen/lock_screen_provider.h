// LockScreenProvider ("lockscreen"): follows the screen lock and the screen saver. While either
// is on the notch steps aside (`locked`); no window can be drawn above a Linux screen locker, so
// there are no lock-screen widgets here, but every locked stretch is still a guarded session, so
// the record and the launch verdict work as they will where the widgets exist. A verdict that
// disables turns off the lock-screen features that are on and keeps a notice for each.
#pragma once

#include <functional>
#include <memory>

#include "base/provider.h"
#include "lockscreen/lock_screen_presence.h"
#include "lockscreen/lock_session_guard.h"
#include "lockscreen/lock_state_source.h"

namespace tindra {

class LockScreenProvider final : public Provider {
  Q_OBJECT
  Q_PROPERTY(bool locked READ locked NOTIFY lockedChanged)

 public:
  // `now` gives seconds since 1970.
  LockScreenProvider(ProviderContext context, std::unique_ptr<LockStateSource> source,
                     LockSessionGuard guard, std::function<double()> now,
                     QObject* parent = nullptr);

  QString name() const override { return QStringLiteral("lockscreen"); }
  void start() override;
  QObject* viewModel() override { return this; }

  bool locked() const { return presence_.isLocked || presence_.isScreensaverRunning; }
  const LockScreenPresence& presence() const { return presence_; }

 signals:
  void lockedChanged(bool locked);

 private:
  void recordCheck();
  void judgeLastLaunch();
  void onChanged(LockScreenPresence::Event event);

  std::unique_ptr<LockStateSource> source_;
  LockSessionGuard guard_;
  std::function<double()> now_;
  LockScreenPresence presence_;
};

}  // namespace tindra
