// ScreenSource: the attached displays as the core sees them (bottom-left points), with the
// conversion back to the toolkit's top-left coordinates for placing windows. Emits
// `screensChanged` whenever a display is added, removed, resized or becomes the main one.
// Displays are named as the user knows them (DisplayNaming), and a name the user chose one by
// keeps meaning it when the names change.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QScreen>
#include <string_view>
#include <vector>

#include "activity/display_candidate.h"
#include "activity/display_naming.h"
#include "activity/rect.h"
#include "activity/screen_descriptor.h"

namespace tindra {

struct PlatformScreen {
  DisplayCandidate candidate;
  DisplayIdentity identity;  // what the platform says of it, which its name is made of
  ScreenDescriptor descriptor;
  QPointer<QScreen> screen;  // null for screens that exist only in tests
};

// Flips between the core's bottom-left points and Qt's top-left global coordinates. `originTop`
// is the Qt y of the core's y = 0 line (the bottom edge of the primary screen).
struct ScreenCoordinates {
  double originTop = 0;

  Rect toCore(const QRectF& rect) const {
    return {rect.x(), originTop - rect.y() - rect.height(), rect.width(), rect.height()};
  }
  QRectF toQt(const Rect& rect) const {
    return {rect.x, originTop - rect.y - rect.height, rect.width, rect.height};
  }
};

class ScreenSource : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual std::vector<PlatformScreen> screens() const = 0;
  virtual ScreenCoordinates coordinates() const = 0;

  // What a laptop's panel is called, in the user's language.
  static QString builtInName();
  // Names each screen from its identity, twins told apart.
  static void nameScreens(std::vector<PlatformScreen>& screens);
  // Whether `stored`, the name a user's choice of display keeps, means `screen`: its name now,
  // or one it went by before.
  static bool refersTo(const PlatformScreen& screen, std::string_view stored);

 signals:
  void screensChanged();
};

}  // namespace tindra
