#include "notch/notch_window_layout.h"

#include <algorithm>
#include <cmath>

namespace tindra {

NotchWindowLayout NotchWindowLayout::forGeometry(const NotchGeometry& geometry,
                                                 const ScreenCoordinates& coordinates) {
  const QRectF screen = coordinates.toQt(geometry.screenFrame);
  const QRectF notch = coordinates.toQt(geometry.notchRect);
  const double margin = 2 * flareRadius + 4;

  NotchWindowLayout layout;
  layout.compactWidthWithEars = notch.width() + 2 * earWidth;
  const double panelWidth = std::min(std::max(layout.compactWidthWithEars, minPanelWidth),
                                     std::max(notch.width(), screen.width() - margin));
  const double panelHeight = std::min(notch.height() + panelContentHeight, screen.height());
  layout.panelSize = {panelWidth, panelHeight};

  const double stretchedWidth = layout.compactWidthWithEars * (1 + maxWidthStretch);
  const double stretchedHeight = notch.height() * (1 + maxHeightStretch);
  const int width = static_cast<int>(
      std::min(screen.width(), std::ceil(std::max(panelWidth, stretchedWidth) + margin)));
  const int height = static_cast<int>(
      std::min(screen.height(), std::ceil(std::max(panelHeight, stretchedHeight) + 4)));

  const double centredLeft = std::round(notch.center().x() - width / 2.0);
  const double left =
      std::clamp(centredLeft, screen.left(), screen.left() + screen.width() - width);
  const double top = std::round(screen.top());
  layout.windowRect = QRect(static_cast<int>(left), static_cast<int>(top), width, height);
  layout.notchRect = notch.translated(-left, -top);
  return layout;
}

}  // namespace tindra
