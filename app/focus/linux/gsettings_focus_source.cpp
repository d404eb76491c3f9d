// GIO's headers name a struct member `signals`, which Qt defines as a keyword: they come first.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

#include "base/assign_if_changed.h"
#include "focus/linux/gsettings_focus_source.h"

namespace tindra {

namespace {

constexpr const char* schemaName = "org.gnome.desktop.notifications";
constexpr const char* bannersKey = "show-banners";

}  // namespace

bool GSettingsFocusSource::available() {
  GSettingsSchemaSource* source = g_settings_schema_source_get_default();
  if (!source) return false;
  GSettingsSchema* schema = g_settings_schema_source_lookup(source, schemaName, TRUE);
  if (!schema) return false;
  const bool hasKey = g_settings_schema_has_key(schema, bannersKey);
  g_settings_schema_unref(schema);
  return hasKey;
}

GSettingsFocusSource::GSettingsFocusSource(QObject* parent) : FocusStatusSource(parent) {
  if (available()) {
    setCheck(
        DiagnosticsLog::Outcome::ok,
        Sentence(QT_TR_NOOP("reading do-not-disturb from GNOME's settings (show-banners)"), tr));
  } else {
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("GNOME's notification settings are not installed: "
                                 "do-not-disturb is unknown"),
                      tr));
  }
}

GSettingsFocusSource::~GSettingsFocusSource() {
  if (!settings_) return;
  g_signal_handler_disconnect(settings_, handler_);
  g_object_unref(settings_);
}

void GSettingsFocusSource::start() {
  if (settings_ || !available()) return;
  settings_ = g_settings_new(schemaName);
  handler_ = g_signal_connect(settings_, "changed::show-banners", G_CALLBACK(onChanged), this);
  read();
}

void GSettingsFocusSource::onChanged(GSettings*, const char*, void* self) {
  static_cast<GSettingsFocusSource*>(self)->read();
}

void GSettingsFocusSource::read() {
  const bool showsBanners = g_settings_get_boolean(settings_, bannersKey) != FALSE;
  publish(!showsBanners);
}

}  // namespace tindra
