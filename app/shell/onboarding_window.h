// OnboardingWindow: the first start's introduction. It says what Tindra shows, what of it works
// on this desktop and, where something is missing, what the user can do (OnboardingFeatures,
// following the diagnostics log as the checks come in), offers the way the notch opens and
// starting at login, and marks `onboardingCompleted` when closed, so it never shows again.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QWidget>

#include "base/diagnostics_log.h"
#include "settings/settings_store.h"
#include "shell/autostart_entry.h"

namespace tindra {

class OnboardingWindow : public QWidget {
  Q_OBJECT

 public:
  OnboardingWindow(SettingsStore& settings, DiagnosticsLog& log, AutostartEntry autostart,
                   QWidget* parent = nullptr);

  // The features as listed now, a line each.
  QString services() const { return services_.text(); }
  // Applies the choices and marks the introduction seen.
  void finish();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void listServices();

  SettingsStore& settings_;
  DiagnosticsLog& log_;
  AutostartEntry autostart_;
  bool systemBus_;
  QLabel services_;
  QButtonGroup opening_;
  QCheckBox startAtLogin_;
};

}  // namespace tindra
