#include "views/notch_content.h"

#include "base/activity_center.h"
#include "settings/settings_keys.h"
#include "views/activity_presentation.h"
#include "views/default_compact.h"

namespace tindra {

NotchContent::NotchContent(ActivityCenter& activities, SettingsStore& settings,
                           const ViewRegistry& views, QObject* parent)
    : QObject(parent),
      activities_(activities),
      settings_(settings),
      views_(views),
      appearance_(&settings) {
  connect(&activities_, &ActivityCenter::currentChanged, this, &NotchContent::activityChanged);
  pinnedObservation_ = settings_.observe({std::string(settings::pinnedWidgets.name)},
                                         [this](std::string_view) { refresh(); });
  refresh();
}

QString NotchContent::activityLabel() const {
  return ActivityPresentation::of(activities_.current()).label;
}

QColor NotchContent::activityAccent() const {
  return ActivityPresentation::of(activities_.current()).accent;
}

QUrl NotchContent::compactSource() const {
  const auto view = views_.compact(activities_.current());
  return view && views_.model(view->provider) ? view->source : QUrl();
}

QObject* NotchContent::compactModel() const {
  const auto view = views_.compact(activities_.current());
  return view ? views_.model(view->provider) : nullptr;
}

QQuickItem* NotchContent::makeCompact() {
  const auto view = views_.compact(activities_.current());
  QObject* model = view ? views_.model(view->provider) : nullptr;
  if (model != nullptr && !view->make) return nullptr;
  QQuickItem* own = model != nullptr ? view->make(model, appearance_) : nullptr;
  return own != nullptr ? own : new DefaultCompact(*this, appearance_);
}

QStringList NotchContent::shownSections(const std::vector<std::string>& pinned) const {
  QStringList transient;
  for (const ViewRegistry::Section& section : views_.sections()) {
    if (section.transient) transient << section.name;
  }
  const QStringList shown = views_.pinned(pinned);
  if (!shown.isEmpty()) return transient + shown;
  QStringList all;
  for (const ViewRegistry::Section& section : views_.sections()) all << section.name;
  return all;
}

void NotchContent::refresh() {
  const std::vector<std::string> pinned = settings_.read(settings::pinnedWidgets);
  QVariantList sections;
  for (const QString& name : shownSections(pinned)) {
    const auto section = std::ranges::find(views_.sections(), name, &ViewRegistry::Section::name);
    // A section may be drawn by several providers' views, side by side.
    for (const ViewRegistry::View& view : section->views) {
      QObject* model = views_.model(view.provider);
      if (!model) continue;
      // A pinned section keeps its place even while it has nothing to show.
      sections << QVariantMap{{"name", name},
                              {"source", view.source},
                              {"model", QVariant::fromValue(model)},
                              {"pinned", !pinned.empty() && !section->transient},
                              {"transient", section->transient}};
    }
  }
  QVariantList idleItems;
  for (const ViewRegistry::View& item : views_.idleItems()) {
    QObject* model = views_.model(item.provider);
    if (model)
      idleItems << QVariantMap{{"source", item.source}, {"model", QVariant::fromValue(model)}};
  }
  if (sections == sections_ && idleItems == idleItems_) return;
  sections_ = sections;
  idleItems_ = idleItems;
  emit sectionsChanged();
}

}  // namespace tindra
