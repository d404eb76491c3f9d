// GIO's headers name a struct member `signals`, which Qt defines as a keyword: they come first.
#pragma push_macro("signals")
#undef signals
#include <gio/gdesktopappinfo.h>
#pragma pop_macro("signals")

#include <QByteArrayList>
#include <map>
#include <memory>

#include "platform/linux/desktop_entry_categories.h"

namespace tindra {

namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
using Entry = std::unique_ptr<GDesktopAppInfo, Unref>;

Entry named(const std::string& name) {
  if (name.empty() || name.find('/') != std::string::npos) return nullptr;
  return Entry(g_desktop_app_info_new((name + ".desktop").c_str()));
}

Entry withWindowClass(const std::string& windowClass) {
  if (windowClass.empty()) return nullptr;
  GList* all = g_app_info_get_all();
  Entry found;
  for (GList* item = all; item != nullptr; item = item->next) {
    auto* info = G_DESKTOP_APP_INFO(item->data);
    const char* wmClass = g_desktop_app_info_get_startup_wm_class(info);
    if (!found && wmClass != nullptr && g_ascii_strcasecmp(wmClass, windowClass.c_str()) == 0) {
      found.reset(G_DESKTOP_APP_INFO(g_object_ref(info)));
    }
  }
  g_list_free_full(all, g_object_unref);
  return found;
}

bool isGame(const Entry& entry) {
  const char* categories = entry ? g_desktop_app_info_get_categories(entry.get()) : nullptr;
  return categories != nullptr && QByteArray(categories).split(';').contains("Game");
}

}  // namespace

bool isGameApplication(const std::string& applicationId, const std::string& windowClass) {
  static std::map<std::pair<std::string, std::string>, bool> known;
  const auto key = std::pair(applicationId, windowClass);
  if (const auto found = known.find(key); found != known.end()) return found->second;
  Entry entry = named(applicationId);
  if (!entry) entry = named(windowClass);
  if (!entry) entry = named(QByteArray::fromStdString(windowClass).toLower().toStdString());
  if (!entry) entry = withWindowClass(windowClass);
  return known[key] = isGame(entry);
}

}  // namespace tindra
