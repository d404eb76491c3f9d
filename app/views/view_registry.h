// ViewRegistry: which views draw what, gathered from the views each provider declares: the
// compact view (the two ears while closed) of each activity kind, the sections of the opened
// panel in their order, and the small items of the idle layout. Each view binds to its
// provider's view model, which the app hands in by the provider's name; a view whose provider
// does not run is not drawn.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "activity/activity_kind.h"
#include "base/provider_views.h"

namespace tindra {

class ViewRegistry {
 public:
  struct View {
    QString provider;  // whose view model the view binds to
    QUrl source;       // none for a compact view drawn in C++
    ProviderViews::MakeCompact make = {};
  };
  struct Section {
    QString name;             // as listed in `pinnedWidgets`: "media", "batteries", ...
    const char* title;        // for a person, marked for translation as "PinnedSectionsEditor"
    std::vector<View> views;  // one or more providers' parts, drawn side by side
    bool transient = false;   // shown only while its activity lasts, whatever is pinned
  };
  using Declared = std::vector<std::pair<std::string_view, ProviderViews>>;

  // From each provider's name and views, in registration order.
  explicit ViewRegistry(const Declared& declared);

  // Where a view declared as `file` ("power/BatteryIdleItem.qml") is loaded from.
  static QUrl source(const QString& file);

  // Every panel section in the panel's default order.
  const std::vector<Section>& sections() const { return sections_; }
  // The sections a person can pin (all but the transient ones), in that order.
  std::vector<const Section*> pinnable() const;
  // The names of the sections of `pinned` that can be pinned, in its order, each once.
  QStringList pinned(const std::vector<std::string>& pinned) const;
  // The idle layout's small items, in order.
  const std::vector<View>& idleItems() const { return idleItems_; }
  // The compact view of `kind`, if a provider draws its own.
  std::optional<View> compact(ActivityKind kind) const;

  void setModel(const QString& provider, QObject* model);
  // The provider's view model; null when it does not run.
  QObject* model(const QString& provider) const;

 private:
  std::vector<Section> sections_;
  std::vector<View> idleItems_;
  std::vector<std::pair<ActivityKind, View>> compact_;
  QHash<QString, QPointer<QObject>> models_;
};

}  // namespace tindra
