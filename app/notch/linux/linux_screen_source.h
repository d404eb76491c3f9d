// LinuxScreenSource: QScreen's view of the X11 (or XWayland) displays. No Linux display has a
// camera housing, so every descriptor has a zero inset; the work area (without panels) stands in
// for the visible frame. Ids are handed out per connector name in order of appearance and stay
// the same while the display is attached.
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
