#include "views/view_registry.h"

#include <algorithm>

#include "base/qt_text.h"

namespace tindra {

QUrl ViewRegistry::source(const QString& file) {
  return QUrl(QStringLiteral("qrc:/Tindra/") + file);
}

ViewRegistry::ViewRegistry(const Declared& declared) {
  // Ranked first, then in registration order: a stable sort keeps providers sharing a rank (or
  // a section) in the order they were registered.
  struct Ranked {
    int rank;
    QString provider;
    const ProviderViews::Section* section;
  };
  std::vector<Ranked> parts;
  std::vector<std::pair<int, View>> idle;
  for (const auto& [name, views] : declared) {
    for (const ProviderViews::Section& section : views.sections) {
      parts.push_back({section.rank, toQString(name), &section});
    }
    for (const ProviderViews::IdleItem& item : views.idle) {
      idle.push_back({item.rank, View{toQString(name), source(item.file)}});
    }
    for (const ProviderViews::Compact& compact : views.compact) {
      const QUrl file = compact.make ? QUrl() : source(compact.file);
      compact_.push_back({compact.kind, View{toQString(name), file, compact.make}});
    }
  }
  std::ranges::stable_sort(parts, {}, &Ranked::rank);
  for (const Ranked& part : parts) {
    auto section = std::ranges::find(sections_, part.section->name, &Section::name);
    if (section == sections_.end()) {
      sections_.push_back({part.section->name, part.section->title, {}, part.section->transient});
      section = std::prev(sections_.end());
    }
    section->views.push_back({part.provider, source(part.section->file)});
  }
  std::ranges::stable_sort(idle, {}, &std::pair<int, View>::first);
  for (auto& item : idle) idleItems_.push_back(std::move(item.second));
}

std::vector<const ViewRegistry::Section*> ViewRegistry::pinnable() const {
  std::vector<const Section*> all;
  for (const Section& section : sections_) {
    if (!section.transient) all.push_back(&section);
  }
  return all;
}

QStringList ViewRegistry::pinned(const std::vector<std::string>& pinned) const {
  QStringList names;
  for (const std::string& name : pinned) {
    const QString candidate = QString::fromStdString(name);
    const auto section = std::ranges::find(sections_, candidate, &Section::name);
    if (section != sections_.end() && !section->transient && !names.contains(candidate)) {
      names << candidate;
    }
  }
  return names;
}

std::optional<ViewRegistry::View> ViewRegistry::compact(ActivityKind kind) const {
  const auto found = std::ranges::find(compact_, kind, &std::pair<ActivityKind, View>::first);
  if (found == compact_.end()) return std::nullopt;
  return found->second;
}

void ViewRegistry::setModel(const QString& provider, QObject* model) {
  models_[provider] = model;
}

QObject* ViewRegistry::model(const QString& provider) const {
  return models_.value(provider).data();
}

}  // namespace tindra
