// FocusStatusSource: whether the desktop's own do-not-disturb (its Focus) is on, reported as it
// changes; unknown until read. FocusStatusSource::Null is the do-nothing source of a desktop
// without such a switch to read: only `tindra focus` then shows a Focus.
#pragma once

#include <optional>

#include "base/backend.h"

namespace tindra {

class FocusStatusSource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<FocusStatusSource>;

  // Whether the desktop's do-not-disturb is on; nothing while unknown.
  const std::optional<bool>& focused() const { return focused_; }

 signals:
  void focusedChanged();

 protected:
  void publish(std::optional<bool> focused) {
    if (assignIfChanged(focused_, focused)) emit focusedChanged();
  }

 private:
  std::optional<bool> focused_;
};

}  // namespace tindra
