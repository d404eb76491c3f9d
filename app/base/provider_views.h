// ProviderViews: the views that draw one provider's view model, declared with the provider: its
// compact view for each activity kind it offers (the two ears while the notch is closed), its
// parts of the opened panel's sections, and its items of the idle layout. QML files are named
// from app/ ("power/BatteryIdleItem.qml"). A compact view may be drawn in C++ instead (a
// PaintedCompact), so that the closed notch needs no QML engine while it shows it. Sections and
// idle items stand in the order of their rank; two providers may share a section by its name, their
// parts side by side in registration order.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

#include "activity/activity_kind.h"

class QQuickItem;

namespace tindra {

class NotchAppearance;

struct ProviderViews {
  // A new compact view drawn in C++ for the provider's view model; null for a model it cannot
  // draw.
  using MakeCompact = std::function<QQuickItem*(QObject* model, const NotchAppearance& look)>;
  struct Compact {
    ActivityKind kind;
    QString file = {};  // none where `make` draws it
    MakeCompact make = {};
  };
  // Makes `View`, a PaintedCompact taking a `Model&` and the appearance.
  template <class View, class Model>
  static MakeCompact painted() {
    return [](QObject* model, const NotchAppearance& look) -> QQuickItem* {
      auto* typed = qobject_cast<Model*>(model);
      return typed != nullptr ? new View(*typed, look) : nullptr;
    };
  }
  struct Section {
    QString name;  // as listed in `pinnedWidgets`: "media", "batteries", ...
    // Its name for a person, marked QT_TRANSLATE_NOOP("PinnedSectionsEditor", …); none for a
    // section that cannot be pinned.
    const char* title = nullptr;
    int rank = 0;  // the panel's default order, lowest first
    QString file;
    // Shown only while its activity lasts, whatever is pinned (the level indicator).
    bool transient = false;
  };
  struct IdleItem {
    int rank = 0;  // the idle layout's order, lowest first
    QString file;
  };

  std::vector<Compact> compact = {};
  std::vector<Section> sections = {};
  std::vector<IdleItem> idle = {};
};

}  // namespace tindra
