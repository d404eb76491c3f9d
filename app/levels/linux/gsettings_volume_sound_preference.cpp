// GIO's headers name a struct member `signals`, which Qt defines as a keyword: they come first.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

#include "levels/linux/gsettings_volume_sound_preference.h"

namespace tindra {

namespace {

constexpr const char* schemaName = "org.gnome.desktop.sound";
constexpr const char* eventSoundsKey = "event-sounds";

}  // namespace

bool GSettingsVolumeSoundPreference::available() {
  // g_settings_new() aborts the program for a schema it does not know, so it is looked up first.
  GSettingsSchemaSource* source = g_settings_schema_source_get_default();
  if (!source) return false;
  GSettingsSchema* schema = g_settings_schema_source_lookup(source, schemaName, TRUE);
  if (!schema) return false;
  const bool hasKey = g_settings_schema_has_key(schema, eventSoundsKey);
  g_settings_schema_unref(schema);
  return hasKey;
}

GSettingsVolumeSoundPreference::GSettingsVolumeSoundPreference(QObject* parent)
    : VolumeSoundPreference(parent) {
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

GSettingsVolumeSoundPreference::~GSettingsVolumeSoundPreference() {
  if (!settings_) return;
  g_signal_handler_disconnect(settings_, handler_);
  g_object_unref(settings_);
}

void GSettingsVolumeSoundPreference::start() {
  if (settings_ || !available()) return;
  settings_ = g_settings_new(schemaName);
  handler_ = g_signal_connect(settings_, "changed::event-sounds", G_CALLBACK(onChanged), this);
  read();
}

void GSettingsVolumeSoundPreference::onChanged(GSettings*, const char*, void* self) {
  static_cast<GSettingsVolumeSoundPreference*>(self)->read();
}

void GSettingsVolumeSoundPreference::read() {
  publish(g_settings_get_boolean(settings_, eventSoundsKey) != FALSE);
}

}  // namespace tindra
