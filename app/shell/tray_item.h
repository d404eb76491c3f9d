// TrayItem: Tindra's menu-bar item (a StatusNotifierItem on Linux), shown while the
// `showMenuBarIcon` setting is on and the desktop has a tray to show it in.
#pragma once

#include <QObject>
#include <QSystemTrayIcon>

#include "settings/settings_store.h"

namespace tindra {

class ShellActions;

class TrayItem : public QObject {
  Q_OBJECT

 public:
  TrayItem(SettingsStore& settings, ShellActions& actions, QObject* parent = nullptr);

  // True while the item is on the tray; when false the notch must offer the menu itself.
  bool isShown() const { return shown_; }
  static bool isTrayAvailable() { return QSystemTrayIcon::isSystemTrayAvailable(); }

 signals:
  void shownChanged(bool shown);

 private:
  void update();

  SettingsStore& settings_;
  SettingsObservation observation_;
  QSystemTrayIcon icon_;
  bool shown_ = false;
};

}  // namespace tindra
