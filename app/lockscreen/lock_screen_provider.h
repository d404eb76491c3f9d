// LockScreenProvider ("lockscreen"): follows the screen lock and the screen saver. While either
// is on the notch steps aside (`locked`); no window can be drawn above a Linux screen locker, so
// there are no lock-screen widgets here, but every locked stretch is still a guarded session, so
// the record and the launch verdict work as they will where the widgets exist. A verdict that
// disables turns off the lock-screen features that are on and keeps a notice for each.
#pragma once

#include <functional>
#include <memory>

#include "base/provider.h"
#include "base/provider_views.h"
#include "lockscreen/lock_screen_presence.h"
#include "lockscreen/lock_screen_view_model.h"
#include "lockscreen/lock_session_guard.h"
#include "lockscreen/lock_state_source.h"

namespace tindra {

class LockScreenProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "lockscreen";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "lockscreen").
  static std::unique_ptr<LockScreenProvider> make(ProviderContext& context);
  static ProviderViews views();

  // `now` gives seconds since 1970.
  LockScreenProvider(ProviderContext context, std::unique_ptr<LockStateSource> source,
                     LockSessionGuard guard, std::function<double()> now,
                     QObject* parent = nullptr);

  void start() override;
  LockScreenViewModel* viewModel() override { return &viewModel_; }

  bool locked() const { return viewModel_.locked(); }
  const LockScreenPresence& presence() const { return presence_; }

 private:
  void judgeLastLaunch();
  void onChanged(LockScreenPresence::Event event);

  std::unique_ptr<LockStateSource> source_;
  LockSessionGuard guard_;
  std::function<double()> now_;
  LockScreenPresence presence_;
  LockScreenViewModel viewModel_;
};

}  // namespace tindra
