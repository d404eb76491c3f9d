#include "visibility/linux/desktop_entry_categories.h"

#include <QByteArrayList>
#include <map>

#include "base/linux/gio_desktop_entry.h"

namespace tindra {

namespace {

using Entry = gio::DesktopEntry;

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
  Entry entry = gio::desktopEntry(applicationId);
  if (!entry) entry = gio::desktopEntry(windowClass);
  if (!entry)
    entry = gio::desktopEntry(QByteArray::fromStdString(windowClass).toLower().toStdString());
  if (!entry) entry = withWindowClass(windowClass);
  return known[key] = isGame(entry);
}

}  // namespace tindra
