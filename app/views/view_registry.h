// ViewRegistry: which QML views draw what, written once: the compact view (the two ears while
// closed) of each activity kind, the section of the opened panel of each subsystem, and the
// small items of the idle layout. Each view binds to one provider's view model, which TindraApp
// hands in by provider name; a view whose provider is not running is not drawn.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <optional>
#include <string>
#include <vector>

#include "activity/activity_kind.h"

namespace tindra {

class ViewRegistry {
 public:
  struct View {
    QString provider;  // whose view model the view binds to
    QUrl source;
  };
  struct Section {
    QString name;             // as listed in `pinnedWidgets`: "media", "batteries", ...
    std::vector<View> views;  // one or more providers' parts, drawn side by side
    // Shown only while its activity lasts, whatever is pinned (the level indicator).
    bool transient = false;
  };

  // Every panel section in the panel's default order.
  static const std::vector<Section>& sections();
  // The names of the sections a person can pin (all but the transient ones), in that order.
  static QStringList pinnable();
  // The sections of `pinned` that can be pinned, in its order, each once.
  static QStringList pinned(const std::vector<std::string>& pinned);
  // The idle layout's small items, in order.
  static const std::vector<View>& idleItems();
  // The compact view of `kind`, if a provider draws its own.
  static std::optional<View> compact(ActivityKind kind);

  void setModel(const QString& provider, QObject* model);
  // The provider's view model; null when it does not run.
  QObject* model(const QString& provider) const;

 private:
  QHash<QString, QPointer<QObject>> models_;
};

}  // namespace tindra
