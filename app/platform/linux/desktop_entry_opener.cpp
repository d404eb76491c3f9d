// GIO's headers name a struct member `signals`, which Qt defines as a keyword: they come first.
#pragma push_macro("signals")
#undef signals
#include <gio/gdesktopappinfo.h>
#pragma pop_macro("signals")

#include <memory>

#include "logging_categories.h"
#include "platform/linux/desktop_entry_opener.h"

namespace tindra {

namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};

std::unique_ptr<GDesktopAppInfo, Unref> entryOf(const QString& desktopEntry) {
  // A desktop entry's name is a plain file name; anything else names no entry.
  if (desktopEntry.isEmpty() || desktopEntry.contains(QLatin1Char('/'))) return nullptr;
  const QByteArray file = (desktopEntry + QStringLiteral(".desktop")).toUtf8();
  return std::unique_ptr<GDesktopAppInfo, Unref>(g_desktop_app_info_new(file.constData()));
}

}  // namespace

QString DesktopEntryOpener::displayName(const QString& desktopEntry) const {
  const auto info = entryOf(desktopEntry);
  return info ? QString::fromUtf8(g_app_info_get_display_name(G_APP_INFO(info.get()))) : QString();
}

bool DesktopEntryOpener::open(const QString& desktopEntry) {
  const auto info = entryOf(desktopEntry);
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
