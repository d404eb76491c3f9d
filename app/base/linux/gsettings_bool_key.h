// GSettingsBoolKey: one switch of the desktop's GSettings (GNOME's schemas), read once started and
// again at each change, which GSettings tells through the GLib main loop that Qt's event loop
// runs on Linux; nothing is polled. Used from the main thread only.
#pragma once

#include <functional>

using GSettings = struct _GSettings;

namespace tindra {

class GSettingsBoolKey {
 public:
  using Changed = std::function<void(bool)>;

  // Whether this machine knows the schema with the key. g_settings_new() aborts the program for
  // a schema it does not know, so nothing is opened unless this holds.
  static bool available(const char* schema, const char* key);

  // `schema` and `key` are string literals, kept as given.
  GSettingsBoolKey(const char* schema, const char* key, Changed changed);
  ~GSettingsBoolKey();
  GSettingsBoolKey(const GSettingsBoolKey&) = delete;
  GSettingsBoolKey& operator=(const GSettingsBoolKey&) = delete;

  // Reads the key and follows it; does nothing where it is not available or already started.
  void start();

 private:
  static void onChanged(GSettings* settings, const char* key, void* self);
  void read();

  const char* schema_;
  const char* key_;
  Changed changed_;
  GSettings* settings_ = nullptr;
  unsigned long handler_ = 0;
};

}  // namespace tindra
