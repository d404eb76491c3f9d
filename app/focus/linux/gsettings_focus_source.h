// GSettingsFocusSource: GNOME's do-not-disturb, which is the `show-banners` key of
// org.gnome.desktop.notifications turned off. GSettings tells of each change through the GLib
// main loop that Qt's event loop runs on Linux; nothing is polled.
#pragma once

#include "focus/focus_status_source.h"

using GSettings = struct _GSettings;

namespace tindra {

class GSettingsFocusSource final : public FocusStatusSource {
  Q_OBJECT

 public:
  // Whether this machine knows the schema with the key, so that the source can work.
  static bool available();

  explicit GSettingsFocusSource(QObject* parent = nullptr);
  ~GSettingsFocusSource() override;

  void start() override;

 private:
  static void onChanged(GSettings* settings, const char* key, void* self);
  void read();

  GSettings* settings_ = nullptr;
  unsigned long handler_ = 0;
};

}  // namespace tindra
