// ProviderViews: the QML views that draw one provider's view model, declared with the provider:
// its compact view for each activity kind it offers (the two ears while the notch is closed), its
// parts of the opened panel's sections, and its items of the idle layout. Files are named from
// app/ ("power/BatteryIdleItem.qml"). Sections and idle items stand in the order of their rank;
// two providers may share a section by its name, their parts side by side in registration order.
#pragma once

#include <QString>
#include <vector>

#include "activity/activity_kind.h"

namespace tindra {

struct ProviderViews {
  struct Compact {
    ActivityKind kind;
    QString file;
  };
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
