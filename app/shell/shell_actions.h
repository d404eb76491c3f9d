// ShellActions: what the user can always do with Tindra (open Settings…, quit), shared by the
// tray item's menu and the notch's own context menu.
#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QPointer>

#include "shell/settings_window.h"

namespace tindra {

class SettingsStore;

class ShellActions : public QObject {
  Q_OBJECT

 public:
  explicit ShellActions(SettingsStore& settings, QObject* parent = nullptr);
  ~ShellActions() override;

  // A menu with Settings… and Quit; the tray and the notch each own one.
  QMenu* menu() { return &menu_; }
  QAction* settingsAction() { return &settingsAction_; }
  QAction* quitAction() { return &quitAction_; }

  // Shows the Settings window, making it on first use.
  void openSettings();
  SettingsWindow* settingsWindow() const { return settingsWindow_; }

 private:
  SettingsStore& settings_;
  QAction settingsAction_;
  QAction quitAction_;
  QMenu menu_;
  QPointer<SettingsWindow> settingsWindow_;
};

}  // namespace tindra
