// How each activity kind introduces itself in the notch until its provider draws its own views:
// a short name and an accent colour. Every user-visible text of the notch lives here.
#pragma once

#include <QColor>
#include <QString>

#include "activity/activity_kind.h"

namespace tindra {

struct ActivityPresentation {
  QString label;  // "Now Playing"; empty for idle
  QColor accent;

  static ActivityPresentation of(ActivityKind kind);
};

}  // namespace tindra
