// GSettingsVolumeSoundPreference: GNOME's event sounds switch (`event-sounds` of
// org.gnome.desktop.sound), which also decides whether GNOME plays its sound when the volume
// changes. GSettings tells of each change through the GLib main loop that Qt's event loop runs
// on Linux; nothing is polled.
#pragma once

#include "base/linux/gsettings_bool_key.h"
#include "levels/volume_sound_preference.h"

namespace tindra {

class GSettingsVolumeSoundPreference final : public VolumeSoundPreference {
  Q_OBJECT

 public:
  // Whether this machine knows the schema with the key, so that the source can work.
  static bool available();

  explicit GSettingsVolumeSoundPreference(QObject* parent = nullptr);

  void start() override;

 private:
  GSettingsBoolKey key_;
};

}  // namespace tindra
