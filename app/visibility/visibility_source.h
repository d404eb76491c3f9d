// VisibilitySource: what the notch needs to know to step aside: the application in front (with
// its full-screen windows and whether it is a game) and the windows on screen, reported when
// they change, never polled. VisibilitySource::Null is the do-nothing source where the window
// system tells nothing: the notch then never steps aside.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "activity/frontmost_app.h"
#include "activity/window_snapshot.h"
#include "base/backend.h"
#include "base/shared_backends.h"

namespace tindra {

class VisibilitySource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<VisibilitySource>;

  // This platform's windows, or the do-nothing source where the window system tells nothing
  // (made in the platform's folder).
  static std::unique_ptr<VisibilitySource> forPlatform(SharedBackends& shared);

  // In the coordinates of Qt's screens (top-left origin).
  const std::optional<FrontmostApp>& frontmost() const { return frontmost_; }
  const std::vector<WindowSnapshot>& windows() const { return windows_; }

 signals:
  void changed();

 protected:
  void publish(std::optional<FrontmostApp> frontmost, std::vector<WindowSnapshot> windows) {
    const bool windowsChanged = assignIfChanged(windows_, std::move(windows));
    if (assignIfChanged(frontmost_, std::move(frontmost)) || windowsChanged) emit changed();
  }

 private:
  std::optional<FrontmostApp> frontmost_;
  std::vector<WindowSnapshot> windows_;
};

}  // namespace tindra
