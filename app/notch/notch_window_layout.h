// NotchWindowLayout: where a notch window goes for one display's NotchGeometry, in Qt's top-left
// global coordinates. The window hangs from the display's top edge, centred on the notch, large
// enough for the opened panel and the closed notch's stretch; it never leaves the display.
#pragma once

#include <QRect>
#include <QRectF>
#include <QSizeF>

#include "activity/notch_geometry.h"
#include "notch/screen_source.h"

namespace tindra {

struct NotchWindowLayout {
  static constexpr double earWidth = 88;    // room for compact content beside the notch
  static constexpr double flareRadius = 6;  // the outline's concave flares at the top edge
  static constexpr double minPanelWidth = 560;
  static constexpr double panelContentHeight = 156;  // the opened panel below the notch
  static constexpr double maxWidthStretch = 0.12;    // the largest stretch amount
  static constexpr double maxHeightStretch = 0.24;

  QRect windowRect;  // global
  QRectF notchRect;  // the closed notch, in window coordinates
  QSizeF panelSize;  // the opened notch
  double compactWidthWithEars = 0;

  static NotchWindowLayout forGeometry(const NotchGeometry& geometry,
                                       const ScreenCoordinates& coordinates);

  friend bool operator==(const NotchWindowLayout&, const NotchWindowLayout&) = default;
};

}  // namespace tindra
