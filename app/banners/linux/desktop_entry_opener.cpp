#include "banners/linux/desktop_entry_opener.h"

#include "base/linux/gio_desktop_entry.h"
#include "base/logging_categories.h"

namespace tindra {

QString DesktopEntryOpener::displayName(const QString& desktopEntry) const {
  const gio::DesktopEntry info = gio::desktopEntry(desktopEntry.toStdString());
  return info ? QString::fromUtf8(g_app_info_get_display_name(G_APP_INFO(info.get()))) : QString();
}

bool DesktopEntryOpener::open(const QString& desktopEntry) {
  const gio::DesktopEntry info = gio::desktopEntry(desktopEntry.toStdString());
  if (!info) return false;
  GError* error = nullptr;
  const bool launched = g_app_info_launch(G_APP_INFO(info.get()), nullptr, nullptr, &error);
  if (error) {
    qCWarning(lcBanners).noquote()
        << "cannot open" << desktopEntry << ":" << QString::fromUtf8(error->message);
    g_error_free(error);
  }
  return launched;
}

}  // namespace tindra
