// GIO's headers name a struct member `signals`, which Qt defines as a keyword: they come first.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

#include <string>

#include "base/linux/gsettings_bool_key.h"

namespace tindra {

bool GSettingsBoolKey::available(const char* schema, const char* key) {
  GSettingsSchemaSource* source = g_settings_schema_source_get_default();
  if (!source) return false;
  GSettingsSchema* found = g_settings_schema_source_lookup(source, schema, TRUE);
  if (!found) return false;
  const bool hasKey = g_settings_schema_has_key(found, key);
  g_settings_schema_unref(found);
  return hasKey;
}

GSettingsBoolKey::GSettingsBoolKey(const char* schema, const char* key, Changed changed)
    : schema_(schema), key_(key), changed_(std::move(changed)) {}

GSettingsBoolKey::~GSettingsBoolKey() {
  if (!settings_) return;
  g_signal_handler_disconnect(settings_, handler_);
  g_object_unref(settings_);
}

void GSettingsBoolKey::start() {
  if (settings_ || !available(schema_, key_)) return;
  settings_ = g_settings_new(schema_);
  const std::string signal = std::string("changed::") + key_;
  handler_ = g_signal_connect(settings_, signal.c_str(), G_CALLBACK(onChanged), this);
  read();
}

void GSettingsBoolKey::onChanged(GSettings*, const char*, void* self) {
  static_cast<GSettingsBoolKey*>(self)->read();
}

void GSettingsBoolKey::read() {
  changed_(g_settings_get_boolean(settings_, key_) != FALSE);
}

}  // namespace tindra
