// ShellActions: what the user can always do with Tindra (open Settings… or Diagnostics…, quit),
// shared by the tray item's menu and the notch's own context menu.
#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <memory>

#include "calendar/calendar_backend.h"
#include "settings/settings_keys.h"
#include "shell/autostart_entry.h"
#include "shell/diagnostics_window.h"
#include "shell/settings_window.h"

namespace tindra {

class ViewRegistry;

class BatteryViewModel;
class DiagnosticsLog;
class HudProvider;
class ScreenSource;
class WeatherProvider;
class SettingsStore;

class ShellActions : public QObject {
  Q_OBJECT

 public:
  // `views` names the sections Settings offers to pin.
  ShellActions(SettingsStore& settings, DiagnosticsLog& diagnostics, const ViewRegistry& views,
               QObject* parent = nullptr);
  ~ShellActions() override;

  // A menu with Settings…, Diagnostics…, Start at Login and Quit; the tray and the notch share it.
  QMenu* menu() { return &menu_; }
  QAction* settingsAction() { return &settingsAction_; }
  QAction* diagnosticsAction() { return &diagnosticsAction_; }
  QAction* quitAction() { return &quitAction_; }
  // Checked while the desktop starts Tindra at login (its XDG autostart entry exists).
  QAction* startAtLoginAction() { return &startAtLoginAction_; }

  // Shows the Settings window, making it on first use.
  void openSettings();
  // Asked each time the Settings window opens: keys that do not apply on this machine, beside
  // those that mean nothing on this desktop (settingsHiddenHere).
  void setHiddenSettings(std::function<bool(std::string_view name)> hidden) {
    hiddenSettings_ = std::move(hidden);
  }
  // The calendars listed under the calendar settings, and why travel times are unavailable
  // (empty when they are available).
  void setCalendars(CalendarBackend* calendars, QString travelUnavailable) {
    calendars_ = calendars;
    if (!travelUnavailable.isEmpty()) {
      addNote(std::string(settings::travelTimeEnabled.name), std::move(travelUnavailable), true);
    }
  }
  // The weather's own settings, under weatherEnabled.
  void setWeather(WeatherProvider* weather) { weather_ = weather; }
  // The attached displays, offered as the choice of displaySelection.
  void setDisplays(ScreenSource* screens) { screens_ = screens; }
  // Said in Settings as it changes: a keyboard light that cannot be used (under its setting),
  // and a computer without a battery (on the battery page).
  void setKeyboardLight(const HudProvider* hud) { hud_ = hud; }
  void setBattery(const BatteryViewModel* battery) { battery_ = battery; }
  SettingsWindow* settingsWindow() const { return settingsWindow_.get(); }
  // A check the Diagnostics window offers as a button; add before it is first opened.
  void addCheck(DiagnosticsWindow::Check check) { checks_.push_back(std::move(check)); }
  void openDiagnostics();
  // Writes or removes the autostart entry; a failure is told in the diagnostics log.
  void startAtLogin(bool on);
  DiagnosticsWindow* diagnosticsWindow() const { return diagnosticsWindow_.get(); }

 private:
  // A few words under a setting, beside those settings_pages.h gives for this desktop: what it
  // does here, or, with `unavailable`, why it cannot work here (in orange, its control greyed out).
  void addNote(std::string name, QString text, bool unavailable) {
    notes_.push_back({std::move(name), std::move(text), unavailable});
  }
  QWidget* diagnosticsPanel();
  void offerDisplays();
  void addFollowedNotes();

  SettingsStore& settings_;
  const ViewRegistry& views_;
  DiagnosticsLog& diagnostics_;
  QAction settingsAction_;
  QAction diagnosticsAction_;
  QAction startAtLoginAction_;
  QAction quitAction_;
  AutostartEntry autostart_;
  QMenu menu_;
  // Made when first opened, kept (hidden when closed) until Tindra quits.
  std::unique_ptr<SettingsWindow> settingsWindow_;
  std::unique_ptr<DiagnosticsWindow> diagnosticsWindow_;
  std::vector<DiagnosticsWindow::Check> checks_;
  std::function<bool(std::string_view)> hiddenSettings_;
  CalendarBackend* calendars_ = nullptr;
  struct Note {
    std::string name;
    QString text;
    bool unavailable;
  };
  std::vector<Note> notes_;
  WeatherProvider* weather_ = nullptr;
  ScreenSource* screens_ = nullptr;
  const HudProvider* hud_ = nullptr;
  const BatteryViewModel* battery_ = nullptr;
};

}  // namespace tindra
