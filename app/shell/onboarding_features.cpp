#include "shell/onboarding_features.h"

#include <optional>

#include "settings/settings_keys.h"

namespace tindra {

namespace {

using Outcome = DiagnosticsLog::Outcome;

// The latest word of `source`, if it has spoken.
std::optional<Outcome> latest(const DiagnosticsLog& log, const QString& source) {
  std::optional<Outcome> outcome;
  for (const DiagnosticsLog::Entry& entry : log.entries()) {
    if (entry.source == source) outcome = entry.outcome;
  }
  return outcome;
}

}  // namespace

QList<OnboardingFeatures::Line> OnboardingFeatures::describe(const DiagnosticsLog& log,
                                                             const SettingsStore& settings,
                                                             bool systemBus) {
  QList<Line> lines;
  // A line from the service's check: `works` when it answers, `missing` otherwise.
  const auto fromCheck = [&](const char* source, const QString& works, const QString& missing) {
    const std::optional<Outcome> outcome = latest(log, QLatin1String(source));
    if (!outcome) return;
    lines << Line{*outcome, *outcome == Outcome::ok ? works : missing};
  };
  // A feature with a switch of its own: off says where to turn it on.
  const auto switched = [&](bool on, const char* source, const QString& off, const QString& works,
                            const QString& missing) {
    if (!on) {
      lines << Line{Outcome::degraded, off};
      return;
    }
    fromCheck(source, works, missing);
  };

  fromCheck("media",
            tr("Now Playing: the track of any player that speaks MPRIS (most music and video "
               "players and web browsers do), with its controls. Start one to see it."),
            tr("Now Playing: no player can be followed yet. Install an MPRIS-capable player, or "
               "start the one you have; if it still does not show, Diagnostics… says why."));
  fromCheck("volume", tr("Volume: shown in the notch as it changes."),
            tr("Volume: no sound server answers. The volume shows as soon as PipeWire or "
               "PulseAudio runs."));
  fromCheck("brightness", tr("Brightness: shown as it changes; the brightness keys step it."),
            tr("Brightness: this display's backlight cannot be controlled here (an external "
               "monitor, or a virtual machine), so the brightness keys stay with the desktop."));
  if (!systemBus) {
    lines << Line{Outcome::failed,
                  tr("Battery and Bluetooth need the system bus (D-Bus), which this session does "
                     "not have. Start Tindra in an ordinary desktop session to see them.")};
  } else {
    fromCheck("battery",
              tr("Battery: its level, and a notice when you plug in, unplug or run low."),
              tr("Battery: UPower does not answer, so no battery is shown. Install or start "
                 "UPower (the upower package)."));
    fromCheck("accessories",
              tr("Bluetooth: the batteries of your connected headphones and other accessories."),
              tr("Bluetooth: BlueZ does not answer, so no accessories are shown. Turn Bluetooth "
                 "on, or install BlueZ (the bluez package)."));
  }
  switched(settings.read(settings::calendarEnabled), "calendar",
           tr("Calendar: off. Turn it on in Settings… and add your calendars (.ics files or web "
              "addresses)."),
           tr("Calendar: your next meeting with its Join button, and today's agenda."),
           tr("Calendar: nothing to show yet. Add your calendars (.ics files or web addresses) "
              "in Settings…, which says of each whether it could be read."));
  switched(settings.read(settings::weatherEnabled), "weather",
           tr("Weather: off. Turn it on in Settings… to see the forecast from MET Norway."),
           tr("Weather: the forecast for where you are, from MET Norway."),
           tr("Weather: no forecast yet. Settings… says why, and lets you choose your place."));
  fromCheck("focus", tr("Do not disturb: shown while it is on."),
            tr("Do not disturb: no notification server answers, so whether it is on is unknown "
               "until one starts."));
  return lines;
}

}  // namespace tindra
