// GIO's desktop entries for the Linux backends: one installed entry by its name, held until the
// handle goes. GIO's headers name a struct member `signals`, which Qt defines as a keyword, so
// they are included here, first, with the keyword set aside.
#pragma once

#pragma push_macro("signals")
#undef signals
#include <gio/gdesktopappinfo.h>
#pragma pop_macro("signals")

#include <memory>
#include <string>

namespace tindra::gio {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
using DesktopEntry = std::unique_ptr<GDesktopAppInfo, Unref>;

// The installed entry "<name>.desktop"; none for a name that is empty or a path.
inline DesktopEntry desktopEntry(const std::string& name) {
  if (name.empty() || name.find('/') != std::string::npos) return nullptr;
  return DesktopEntry(g_desktop_app_info_new((name + ".desktop").c_str()));
}

}  // namespace tindra::gio
