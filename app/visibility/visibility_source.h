// VisibilitySource: what the notch needs to know to step aside: the application in front (with
// its full-screen windows and whether it is a game) and the windows on screen, reported when
// they change, never polled. NullVisibilitySource is the do-nothing source where the window
// system tells nothing (Wayland): the notch then never steps aside.
#pragma once

#include <QObject>
#include <optional>
#include <vector>

#include "activity/frontmost_app.h"
#include "activity/window_snapshot.h"
#include "base/service_check.h"

namespace tindra {

class VisibilitySource : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual void start() = 0;
  // In the coordinates of Qt's screens (top-left origin).
  virtual std::optional<FrontmostApp> frontmost() const = 0;
  virtual std::vector<WindowSnapshot> windows() const = 0;
  virtual ServiceCheck check() const = 0;

 signals:
  void changed();
  void checkChanged();
};

class NullVisibilitySource final : public VisibilitySource {
 public:
  explicit NullVisibilitySource(QString reason, QObject* parent = nullptr)
      : VisibilitySource(parent), check_{DiagnosticsLog::Outcome::degraded, std::move(reason)} {}

  void start() override {}
  std::optional<FrontmostApp> frontmost() const override { return std::nullopt; }
  std::vector<WindowSnapshot> windows() const override { return {}; }
  ServiceCheck check() const override { return check_; }

 private:
  ServiceCheck check_;
};

}  // namespace tindra
