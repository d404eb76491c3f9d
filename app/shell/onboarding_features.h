// OnboardingFeatures: what the first start's introduction says Tindra found, a line for each
// feature a user knows (Now Playing, volume, brightness, battery, Bluetooth, calendar, weather,
// do not disturb), from its service's latest check and its own switch in Settings: what it
// shows, or what is missing and what the user can do about it. The checks' own sentences, with
// their paths and error names, stay in Diagnostics.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

#include "base/diagnostics_log.h"
#include "settings/settings_store.h"

namespace tindra {

class OnboardingFeatures {
  Q_DECLARE_TR_FUNCTIONS(OnboardingFeatures)

 public:
  struct Line {
    DiagnosticsLog::Outcome outcome;
    QString text;
  };

  // `systemBus`: whether this session has a system bus, without which the battery and
  // Bluetooth cannot be read at all. Features whose service has not answered yet are left out.
  static QList<Line> describe(const DiagnosticsLog& log, const SettingsStore& settings,
                              bool systemBus);
};

}  // namespace tindra
