// GSettingsFocusSource: GNOME's do-not-disturb, which is the `show-banners` key of
// org.gnome.desktop.notifications turned off. GSettings tells of each change through the GLib
// main loop that Qt's event loop runs on Linux; nothing is polled.
#pragma once

#include "base/linux/gsettings_bool_key.h"
#include "focus/focus_status_source.h"

namespace tindra {

class GSettingsFocusSource final : public FocusStatusSource {
  Q_OBJECT

 public:
  // Whether this machine knows the schema with the key, so that the source can work.
  static bool available();

  explicit GSettingsFocusSource(QObject* parent = nullptr);

  void start() override;

 private:
  GSettingsBoolKey key_;
};

}  // namespace tindra
