#include "tindra_app.h"

#include <QDateTime>

#include "activity_center.h"
#include "notch/notch_screen_manager.h"
#include "notch/notch_window.h"
#include "platform/screen_source_factory.h"
#include "settings/settings_store.h"
#include "settings_file_watcher.h"
#include "shell/shell_actions.h"
#include "shell/tray_item.h"

namespace tindra {

namespace {

double secondsSince1970() {
  return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

}  // namespace

TindraApp::TindraApp(Options options, QObject* parent)
    : QObject(parent),
      options_(options),
      settings_(std::make_unique<SettingsStore>(SettingsStore::defaultFile(), secondsSince1970)),
      watcher_(std::make_unique<SettingsFileWatcher>(*settings_)),
      activities_(std::make_unique<ActivityCenter>(*settings_)),
      shell_(std::make_unique<ShellActions>(*settings_)),
      tray_(std::make_unique<TrayItem>(*settings_, *shell_)),
      screens_(makePlatformScreenSource()) {
  notches_ = std::make_unique<NotchScreenManager>(
      *screens_, *settings_, *activities_, [this](NotchWindow& window) {
        window.setAnimated(options_.animated);
        window.setContextMenu(tray_->isShown() ? nullptr : shell_->menu());
      });
  connect(tray_.get(), &TrayItem::shownChanged, this, &TindraApp::offerMenuOnNotches);
}

TindraApp::~TindraApp() = default;

void TindraApp::offerMenuOnNotches() {
  for (NotchWindow* window : notches_->windows()) {
    window->setContextMenu(tray_->isShown() ? nullptr : shell_->menu());
  }
}

}  // namespace tindra
