#include "focus/linux/gsettings_focus_source.h"

namespace tindra {

namespace {

constexpr const char* schemaName = "org.gnome.desktop.notifications";
constexpr const char* bannersKey = "show-banners";

}  // namespace

bool GSettingsFocusSource::available() {
  return GSettingsBoolKey::available(schemaName, bannersKey);
}

GSettingsFocusSource::GSettingsFocusSource(QObject* parent)
    : FocusStatusSource(parent),
      key_(schemaName, bannersKey, [this](bool showsBanners) { publish(!showsBanners); }) {
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

void GSettingsFocusSource::start() {
  key_.start();
}

}  // namespace tindra
