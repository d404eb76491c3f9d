// NotchContent: what the notch shows, shared by the notches of all displays: the current
// activity's compact view and its view model, the opened panel's sections (the ones pinned in
// `pinnedWidgets`, in their order, or all of them while none are pinned), the idle layout's
// items and its clock. The notch windows themselves keep only geometry, input and animation.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QUrl>
#include <QVariantList>

#include "activity/activity_kind.h"
#include "settings/settings_store.h"
#include "views/idle_clock.h"
#include "views/notch_appearance.h"
#include "views/view_registry.h"

class QQuickItem;

namespace tindra {

class ActivityCenter;

class NotchContent : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("given to each notch by the app")
  Q_PROPERTY(QString activityLabel READ activityLabel NOTIFY activityChanged)
  Q_PROPERTY(QColor activityAccent READ activityAccent NOTIFY activityChanged)
  // The activity's compact view where QML draws it; empty where C++ does (makeCompact).
  Q_PROPERTY(QUrl compactSource READ compactSource NOTIFY activityChanged)
  Q_PROPERTY(QObject* compactModel READ compactModel NOTIFY activityChanged)
  // Each entry: {name, source, model, pinned}.
  Q_PROPERTY(QVariantList sections READ sections NOTIFY sectionsChanged)
  // Each entry: {source, model}.
  Q_PROPERTY(QVariantList idleItems READ idleItems NOTIFY sectionsChanged)
  Q_PROPERTY(IdleClock* clock READ clock CONSTANT)

 public:
  NotchContent(ActivityCenter& activities, SettingsStore& settings, const ViewRegistry& views,
               QObject* parent = nullptr);

  QString activityLabel() const;
  QColor activityAccent() const;
  QUrl compactSource() const;
  QObject* compactModel() const;
  // The activity's compact view where C++ draws it: its own, or, for one that has none, a mark
  // and its name. A new item for the caller; null where QML draws it (compactSource).
  QQuickItem* makeCompact();
  QVariantList sections() const { return sections_; }
  QVariantList idleItems() const { return idleItems_; }
  IdleClock* clock() { return &clock_; }
  NotchAppearance& appearance() { return appearance_; }

  // The section names shown, in order, for `pinned` (unknown names are skipped).
  QStringList shownSections(const std::vector<std::string>& pinned) const;
  // Reads the registry again, for providers that started after this was made.
  void refresh();

 signals:
  void activityChanged();
  void sectionsChanged();

 private:
  ActivityCenter& activities_;
  SettingsStore& settings_;
  const ViewRegistry& views_;
  SettingsObservation pinnedObservation_;
  IdleClock clock_;
  NotchAppearance appearance_;
  QVariantList sections_;
  QVariantList idleItems_;
};

}  // namespace tindra
