// DesktopEntryOpener: opens applications through their installed desktop entries with GIO, which
// follows the desktop's own rules (D-Bus activation, startup notification, the Exec line).
#pragma once

#include "banners/application_opener.h"

namespace tindra {

class DesktopEntryOpener final : public ApplicationOpener {
 public:
  QString displayName(const QString& desktopEntry) const override;
  bool open(const QString& desktopEntry) override;
};

}  // namespace tindra
