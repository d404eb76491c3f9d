#include "levels/linux/gsettings_volume_sound_preference.h"

namespace tindra {

namespace {

constexpr const char* schemaName = "org.gnome.desktop.sound";
constexpr const char* eventSoundsKey = "event-sounds";

}  // namespace

bool GSettingsVolumeSoundPreference::available() {
  return GSettingsBoolKey::available(schemaName, eventSoundsKey);
}

GSettingsVolumeSoundPreference::GSettingsVolumeSoundPreference(QObject* parent)
    : VolumeSoundPreference(parent),
      key_(schemaName, eventSoundsKey, [this](bool eventSounds) { publish(eventSounds); }) {
  if (available()) {
    setCheck(DiagnosticsLog::Outcome::ok,
             Sentence(QT_TR_NOOP("the volume sound follows GNOME's event sounds setting"), tr));
  } else {
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("GNOME's sound settings are not installed: the volume sound "
                                 "follows Tindra's own setting"),
                      tr));
  }
}

void GSettingsVolumeSoundPreference::start() {
  key_.start();
}

}  // namespace tindra
