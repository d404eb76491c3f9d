// VisibilityMonitor: decides for each display whether its notch steps aside now (over a
// full-screen window, or a game that is full screen) from what the visibility source reports and
// the user's settings, and says when that changes, with the reason, in the diagnostics log. The
// windows themselves are shown and hidden by NotchScreenManager.
#pragma once

#include <QObject>
#include <QRect>
#include <memory>
#include <optional>

#include "activity/notch_hide_reason.h"
#include "activity/visibility_settings.h"
#include "settings/settings_store.h"
#include "visibility/visibility_source.h"

namespace tindra {

class DiagnosticsLog;
class SharedBackends;

class VisibilityMonitor : public QObject {
  Q_OBJECT

 public:
  // Its name in TINDRA_FAKE and the diagnostics.
  static constexpr std::string_view id = "visibility";
  // With the source this platform gives it (the fake one when TINDRA_FAKE names "visibility").
  static std::unique_ptr<VisibilityMonitor> make(SettingsStore& settings,
                                                 DiagnosticsLog& diagnostics,
                                                 SharedBackends& shared);

  VisibilityMonitor(std::unique_ptr<VisibilitySource> source, SettingsStore& settings,
                    DiagnosticsLog& diagnostics, QObject* parent = nullptr);

  void start();
  // Why the notch on the display with `screen` (Qt's global geometry) steps aside, or none.
  std::optional<NotchHideReason> reasonFor(const QRect& screen) const;
  // The reason on the first display whose notch steps aside, for diagnostics; none while every
  // notch shows.
  std::optional<NotchHideReason> reason() const { return reason_; }

 signals:
  void changed();

 private:
  VisibilitySettings visibilitySettings() const;
  void recordCheck();
  void update();

  std::unique_ptr<VisibilitySource> source_;
  SettingsStore& settings_;
  DiagnosticsLog& diagnostics_;
  SettingsObservation observation_;
  std::optional<NotchHideReason> reason_;
};

}  // namespace tindra
