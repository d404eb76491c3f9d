#include "visibility/visibility_monitor.h"
#include "base/backend_selection.h"
#include "visibility/fake_visibility_source.h"

#include <QGuiApplication>
#include <QScreen>

#include "activity/game_list_parser.h"
#include "activity/visibility_policy.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "settings/settings_keys.h"

namespace tindra {

namespace {

const QString source = QString::fromLatin1(VisibilityMonitor::id.data(),
                                           static_cast<qsizetype>(VisibilityMonitor::id.size()));

}  // namespace

VisibilityMonitor::VisibilityMonitor(std::unique_ptr<VisibilitySource> visibility,
                                     SettingsStore& settings, DiagnosticsLog& diagnostics,
                                     QObject* parent)
    : QObject(parent),
      source_(std::move(visibility)),
      settings_(settings),
      diagnostics_(diagnostics) {
  connect(source_.get(), &VisibilitySource::changed, this, &VisibilityMonitor::update);
  connect(source_.get(), &VisibilitySource::checkChanged, this, &VisibilityMonitor::recordCheck);
}

void VisibilityMonitor::start() {
  observation_ = settings_.observe(
      {std::string(settings::hideInFullScreen.name), std::string(settings::hideForGames.name),
       std::string(settings::gameBundleIdentifiers.name)},
      [this](std::string_view) { update(); });
  source_->start();
  recordCheck();
  update();
}

VisibilitySettings VisibilityMonitor::visibilitySettings() const {
  VisibilitySettings result;
  result.hideInFullScreen = settings_.read(settings::hideInFullScreen);
  result.hideForGames = settings_.read(settings::hideForGames);
  // This desktop has no Mission Control to step aside for.
  result.hideDuringMissionControl = false;
  for (std::string& game : GameListParser::parse(settings_.read(settings::gameBundleIdentifiers))) {
    result.gameBundleIdentifiers.insert(std::move(game));
  }
  return result;
}

std::optional<NotchHideReason> VisibilityMonitor::reasonFor(const QRect& screen) const {
  const Rect frame{static_cast<double>(screen.x()), static_cast<double>(screen.y()),
                   static_cast<double>(screen.width()), static_cast<double>(screen.height())};
  const std::vector<WindowSnapshot> windows = source_->windows();
  return VisibilityPolicy::hideReason(visibilitySettings(), source_->frontmost(), windows,
                                      std::nullopt, frame);
}

void VisibilityMonitor::recordCheck() {
  const ServiceCheck check = source_->check();
  diagnostics_.record(lcNotch(), source, check.outcome, check.text);
}

void VisibilityMonitor::update() {
  std::optional<NotchHideReason> any;
  for (QScreen* screen : QGuiApplication::screens()) {
    if (!any) any = reasonFor(screen->geometry());
  }
  if (any != reason_) {
    reason_ = any;
    diagnostics_.record(lcNotch(), source, DiagnosticsLog::Outcome::ok,
                        reason_ ? Sentence(QT_TR_NOOP("the notch steps aside: %1"), tr)
                                      .arg(toQString(tindra::name(*reason_)))
                                : Sentence(QT_TR_NOOP("the notch shows"), tr));
  }
  emit changed();
}

std::unique_ptr<VisibilityMonitor> VisibilityMonitor::make(SettingsStore& settings,
                                                           DiagnosticsLog& diagnostics,
                                                           SharedBackends& shared) {
  return std::make_unique<VisibilityMonitor>(
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeVisibilitySource>(); },
          [&] { return VisibilitySource::forPlatform(shared); }),
      settings, diagnostics);
}

}  // namespace tindra
