// GSettingsVolumeSoundPreference: GNOME's event sounds switch (`event-sounds` of
// org.gnome.desktop.sound), which also decides whether GNOME plays its sound when the volume
// changes. GSettings tells of each change through the GLib main loop that Qt's event loop runs
// on Linux; nothing is polled.
#pragma once

#include "levels/volume_sound_preference.h"

using GSettings = struct _GSettings;

namespace tindra {

class GSettingsVolumeSoundPreference final : public VolumeSoundPreference {
  Q_OBJECT

 public:
  // Whether this machine knows the schema with the key, so that the source can work.
  static bool available();

  explicit GSettingsVolumeSoundPreference(QObject* parent = nullptr);
  ~GSettingsVolumeSoundPreference() override;

  void start() override;

 private:
  static void onChanged(GSettings* settings, const char* key, void* self);
  void read();

  GSettings* settings_ = nullptr;
  unsigned long handler_ = 0;
};

}  // namespace tindra
