#include "views/view_registry.h"

namespace tindra {

namespace {

QUrl view(const char* file) {
  return QUrl(QStringLiteral("qrc:/Tindra/qml/") + QLatin1String(file));
}

}  // namespace

const std::vector<ViewRegistry::Section>& ViewRegistry::sections() {
  static const std::vector<Section> all{
      {QStringLiteral("hud"), {{QStringLiteral("hud"), view("HudPanel.qml")}}, true},
      {QStringLiteral("banners"), {{QStringLiteral("banners"), view("BannerPanel.qml")}}, true},
      {QStringLiteral("media"), {{QStringLiteral("media"), view("MediaPanel.qml")}}},
      {QStringLiteral("calendar"), {{QStringLiteral("calendar"), view("CalendarPanel.qml")}}},
      {QStringLiteral("weather"), {{QStringLiteral("weather"), view("WeatherPanel.qml")}}},
      {QStringLiteral("fileTray"), {{QStringLiteral("files"), view("FileTrayPanel.qml")}}},
      {QStringLiteral("batteries"),
       {{QStringLiteral("battery"), view("BatteriesPanel.qml")},
        {QStringLiteral("accessories"), view("AccessoriesPanel.qml")}}},
  };
  return all;
}

QStringList ViewRegistry::pinnable() {
  QStringList names;
  for (const Section& section : sections()) {
    if (!section.transient) names << section.name;
  }
  return names;
}

QStringList ViewRegistry::pinned(const std::vector<std::string>& pinned) {
  const QStringList known = pinnable();
  QStringList names;
  for (const std::string& name : pinned) {
    const QString candidate = QString::fromStdString(name);
    if (known.contains(candidate) && !names.contains(candidate)) names << candidate;
  }
  return names;
}

const std::vector<ViewRegistry::View>& ViewRegistry::idleItems() {
  static const std::vector<View> all{{QStringLiteral("battery"), view("BatteryIdleItem.qml")},
                                     {QStringLiteral("weather"), view("WeatherIdleItem.qml")},
                                     {QStringLiteral("focus"), view("FocusIdleItem.qml")}};
  return all;
}

std::optional<ViewRegistry::View> ViewRegistry::compact(ActivityKind kind) {
  switch (kind) {
    case ActivityKind::nowPlaying:
      return View{QStringLiteral("media"), view("MediaCompact.qml")};
    case ActivityKind::hud:
      return View{QStringLiteral("hud"), view("HudCompact.qml")};
    case ActivityKind::upcomingEvent:
      return View{QStringLiteral("calendar"), view("CalendarCompact.qml")};
    case ActivityKind::batteryAlert:
      return View{QStringLiteral("battery"), view("BatteryCompact.qml")};
    case ActivityKind::accessory:
      return View{QStringLiteral("accessories"), view("AccessoryCompact.qml")};
    case ActivityKind::focus:
      return View{QStringLiteral("focus"), view("FocusCompact.qml")};
    case ActivityKind::message:
      return View{QStringLiteral("banners"), view("MessageCompact.qml")};
    case ActivityKind::incomingCall:
      return View{QStringLiteral("banners"), view("CallCompact.qml")};
    default:
      return std::nullopt;
  }
}

void ViewRegistry::setModel(const QString& provider, QObject* model) {
  models_[provider] = model;
}

QObject* ViewRegistry::model(const QString& provider) const {
  return models_.value(provider).data();
}

}  // namespace tindra
