// LinuxScreenSource: QScreen's view of the displays, on X11 (or XWayland) or on Wayland. No Linux
// display has a camera housing, so every descriptor has a zero inset; the work area (without
// panels) stands in for the visible frame. Ids are handed out per connector name in order of
// appearance and stay the same while the display is attached. The product name is the monitor's
// model as Qt reports it: read from the EDID through RandR on X11, the output's model as the
// compositor announces it on Wayland.
#pragma once

#include <QHash>
#include <QString>

#include "notch/screen_source.h"

namespace tindra {

class LinuxScreenSource : public ScreenSource {
  Q_OBJECT

 public:
  explicit LinuxScreenSource(QObject* parent = nullptr);

  std::vector<PlatformScreen> screens() const override;
  ScreenCoordinates coordinates() const override;

 private:
  void watch(QScreen* screen);
  std::uint32_t idFor(const QString& name) const;

  mutable QHash<QString, std::uint32_t> ids_;
};

}  // namespace tindra
