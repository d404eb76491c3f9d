#include "shell/shell_actions.h"

#include <QCoreApplication>

#include "shell/settings_window.h"

namespace tindra {

ShellActions::ShellActions(SettingsStore& settings, QObject* parent)
    : QObject(parent),
      settings_(settings),
      settingsAction_(tr("Settings…")),
      quitAction_(tr("Quit Tindra")) {
  connect(&settingsAction_, &QAction::triggered, this, &ShellActions::openSettings);
  connect(&quitAction_, &QAction::triggered, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  menu_.addAction(&settingsAction_);
  menu_.addSeparator();
  menu_.addAction(&quitAction_);
}

ShellActions::~ShellActions() {
  delete settingsWindow_;
}

void ShellActions::openSettings() {
  if (settingsWindow_ == nullptr) settingsWindow_ = new SettingsWindow(settings_);
  settingsWindow_->show();
  settingsWindow_->raise();
  settingsWindow_->activateWindow();
}

}  // namespace tindra
