#include "lockscreen/lock_screen_provider.h"
#include <QSysInfo>
#include "base/backend_selection.h"
#include "base/wall_clock.h"
#include "lockscreen/fake_lock_state_source.h"

#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "settings/settings_keys.h"
#include "settings/settings_store.h"

namespace tindra {

LockScreenProvider::LockScreenProvider(ProviderContext context,
                                       std::unique_ptr<LockStateSource> source,
                                       LockSessionGuard guard, std::function<double()> now,
                                       QObject* parent)
    : Provider(context, id, parent),
      source_(std::move(source)),
      guard_(std::move(guard)),
      now_(std::move(now)) {
  connect(source_.get(), &LockStateSource::changed, this, &LockScreenProvider::onChanged);
}

void LockScreenProvider::start() {
  judgeLastLaunch();
  followCheck(lcLockScreen(), *source_);
  source_->start();
}

void LockScreenProvider::judgeLastLaunch() {
  const LockSessionPolicy::Launch launch = guard_.launch();
  const auto* disable = std::get_if<LockSessionPolicy::Disable>(&launch.verdict);
  if (!disable) return;
  qCWarning(lcLockScreen).noquote()
      << "lock-screen session guard:" << toQString(LockScreenNotice::message(disable->reason));
  const LockScreenNotice notice{disable->reason, now_(), guard_.osVersion()};
  for (const LockScreenFeature feature : LockSessionPolicy::featuresToTurnOff(
           launch.verdict, settings().read(settings::experimentalLockScreen),
           settings().read(settings::lockScreenNotch))) {
    (void)settings().writeStored(enabledSettingName(feature), JSONValue(false));
    (void)settings().writeStored(noticeSettingName(feature), JSONValue(notice.settingText()));
  }
}

void LockScreenProvider::onChanged(LockScreenPresence::Event event) {
  for (const LockScreenPresence::Action action : presence_.handle(event)) {
    if (action == LockScreenPresence::Action::beginSession) guard_.begin(now_());
    if (action == LockScreenPresence::Action::endSession) guard_.end();
  }
  qCInfo(lcLockScreen).noquote() << "screen" << toQString(tindra::name(event));
  viewModel_.setLocked(presence_.isLocked || presence_.isScreensaverRunning);
}

std::unique_ptr<LockScreenProvider> LockScreenProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  return std::make_unique<LockScreenProvider>(
      context,
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeLockStateSource>(); },
          [&] { return LockStateSource::forPlatform(shared); }),
      LockSessionGuard(context.settings.file().parent_path(), LockSessionGuard::readBootID(),
                       QSysInfo::prettyProductName().toStdString()),
      secondsSince1970);
}

// Nothing is drawn while the screen is locked: the notch steps aside.
ProviderViews LockScreenProvider::views() {
  return {};
}

}  // namespace tindra
