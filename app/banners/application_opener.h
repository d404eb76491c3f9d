// ApplicationOpener: brings up an installed application by its desktop entry ("org.gnome.Calls"),
// the one thing Tindra can honestly do with another program's call or message.
#pragma once

#include <QString>
#include <memory>

namespace tindra {

class ApplicationOpener {
 public:
  // This platform's way of opening applications (made in the platform's folder).
  static std::unique_ptr<ApplicationOpener> forPlatform();

  virtual ~ApplicationOpener() = default;
  // The application's name as its desktop entry gives it; empty when no such entry is installed.
  virtual QString displayName(const QString& desktopEntry) const = 0;
  // Starts the application, or brings it forward when it runs; false when it could not.
  virtual bool open(const QString& desktopEntry) = 0;
};

}  // namespace tindra
