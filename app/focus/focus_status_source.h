// FocusStatusSource: whether the desktop's own do-not-disturb (its Focus) is on, reported as it
// changes; unknown until read. FocusStatusSource::Null is the do-nothing source of a desktop
// without such a switch to read: only `tindra focus` then shows a Focus.
#pragma once

#include <memory>
#include <optional>

#include "base/backend.h"
#include "base/shared_backends.h"

namespace tindra {

class FocusStatusSource : public Backend {
  Q_OBJECT

 public:
  using Backend::Backend;
  using Null = NullBackend<FocusStatusSource>;

  // This platform's do-not-disturb, or the do-nothing source where there is none to read (made
  // in the platform's folder).
  static std::unique_ptr<FocusStatusSource> forPlatform(SharedBackends& shared);
  // The one source the Focus and the banners share: the invented one when TINDRA_FAKE names
  // "focus", else this platform's.
  static std::shared_ptr<FocusStatusSource> shared(SharedBackends& shared);

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
