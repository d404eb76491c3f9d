#include "focus/focus_provider.h"

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "settings/settings_keys.h"

namespace tindra {

FocusProvider::FocusProvider(ProviderContext context, std::shared_ptr<FocusStatusSource> status,
                             QObject* parent)
    : Provider(context, id, parent), status_(std::move(status)) {
  connect(status_.get(), &FocusStatusSource::focusedChanged, this, &FocusProvider::update);
}

void FocusProvider::start() {
  // `tindra focus` writes from another process; the settings watcher reloads and tells us.
  observation_ = settings().observe(
      {std::string(settings::focusFilterState.name), std::string(settings::focusShown.name),
       std::string(settings::focusKeepsIndicator.name)},
      [this](std::string_view) { update(); });
  followCheck(lcFocus(), *status_);
  status_->start();
  update();
}

void FocusProvider::update() {
  const FocusFilterState filter =
      FocusFilterState::decode(settings().read(settings::focusFilterState));
  std::optional<FocusPresentation::Shown> next;
  if (settings().read(settings::focusShown)) {
    next = FocusPresentation::shown(filter, status_->focused().value_or(false));
  }
  viewModel_.set(
      next, FocusPresentation::indicator(next, settings().read(settings::focusKeepsIndicator)));
  if (next == shown_) return;
  if (shown_ && !next) lastTurnedOff_ = shown_;
  shown_ = next;
  if (shown_) {
    qCInfo(lcFocus).noquote() << "Focus on:" << viewModel_.name() << viewModel_.symbol();
    activities().offer(
        ActivityEvent::began(ActivityKind::focus, FocusPresentation::noticeDuration));
  } else {
    qCInfo(lcFocus) << "Focus off";
    activities().offer(ActivityEvent::ended(ActivityKind::focus));
  }
}

std::unique_ptr<FocusProvider> FocusProvider::make(ProviderContext& context) {
  return std::make_unique<FocusProvider>(context, FocusStatusSource::shared(*context.shared));
}

ProviderViews FocusProvider::views() {
  return {.compact = {{ActivityKind::focus, QStringLiteral("focus/FocusCompact.qml")}},
          .idle = {{.rank = 30, .file = QStringLiteral("focus/FocusIdleItem.qml")}}};
}

}  // namespace tindra
