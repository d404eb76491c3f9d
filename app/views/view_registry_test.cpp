#include "views/view_registry.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "activity/activity_kind.h"
#include "providers/accessory_view_model.h"
#include "providers/banner_view_model.h"
#include "providers/battery_view_model.h"
#include "providers/calendar_view_model.h"
#include "providers/file_tray_view_model.h"
#include "providers/focus_view_model.h"
#include "providers/hud_view_model.h"
#include "providers/now_playing_view_model.h"
#include "providers/weather_view_model.h"

void qml_register_types_Tindra();

namespace tindra {
namespace {

// Every registered view loads, on its provider's view model, without a single QML warning: a
// view that fails to load leaves an empty notch and nothing else says so.
TEST(ViewRegistryTest, EveryViewLoadsOnItsProvidersModelWithoutWarnings) {
  qml_register_types_Tindra();
  QQmlEngine engine;
  engine.addImportPath(QStringLiteral("qrc:/"));
  QList<QQmlError> warnings;
  QObject::connect(&engine, &QQmlEngine::warnings,
                   [&](const QList<QQmlError>& more) { warnings += more; });

  NowPlayingViewModel media([](const NowPlayingCommand&) {});
  BatteryViewModel battery;
  AccessoryViewModel accessories;
  BluetoothAccessory buds;
  buds.name = "Buds";
  buds.kind = BluetoothAccessoryKind::airPodsPro;
  buds.battery = {80, 70, 40, std::nullopt};
  accessories.setAccessories({buds});
  accessories.setNotice({AccessoryNotice::Kind::connected, buds, std::nullopt});
  HudViewModel hud;
  hud.show(HUDState(HUDKind::volume, 0.5), HUDBarMotion::settle(), HUDBarStyle::ring,
           HUDTint::level);
  CalendarViewModel calendar([](const QString&) { return false; });
  CalendarViewModel::State meeting;
  meeting.enabled = meeting.featured = true;
  meeting.title = "Review";
  meeting.earText = "8 min";
  meeting.joinService = "Zoom";
  meeting.agenda = {QVariantMap{{"id", "a"},
                                {"title", "Review"},
                                {"time", "10:08–10:38"},
                                {"status", "upcoming"},
                                {"color", QColor(Qt::blue)},
                                {"joinService", "Zoom"}}};
  meeting.reminders = {
      QVariantMap{{"title", "Slides"}, {"due", ""}, {"done", false}, {"color", QColor(Qt::blue)}}};
  calendar.setState(meeting);
  WeatherViewModel weather;
  weather.setState({true, true, "7 °C", "Partly cloudy", "cloud.sun.rain.fill",
                    "10 % chance of precipitation", "High 9 °C · Low 2 °C", "Sunset 16:42",
                    "GeoClue", ""});
  FocusViewModel focus;
  focus.set(FocusPresentation::Shown{"Deep Work", FocusSymbol::book},
            FocusPresentation::Shown{"Deep Work", FocusSymbol::book});
  BannerViewModel banners([] {});
  banners.setMessage(BannerViewModel::Message{"Chat", "Ana", "Hi", false, "Open Chat"});
  banners.setRinging(true, "Phone");
  FileTrayViewModel files({[](const QString&) {}, [](const QString&) {}, [] {}, [] {}});
  files.set(true,
            {QVariantMap{{"id", "1"},
                         {"name", "a.txt"},
                         {"url", "file:///a.txt"},
                         {"missing", false},
                         {"copy", false}},
             QVariantMap{{"id", "2"},
                         {"name", "b.txt"},
                         {"url", "file:///b.txt"},
                         {"missing", true},
                         {"copy", true}}},
            "Already in the tray: a.txt.");
  files.setProgress(true, 0.4, "Copying 1 item into the tray…");
  const std::map<QString, QObject*> models{{"media", &media},       {"battery", &battery},
                                           {"hud", &hud},           {"accessories", &accessories},
                                           {"calendar", &calendar}, {"weather", &weather},
                                           {"focus", &focus},       {"banners", &banners},
                                           {"files", &files}};

  std::vector<ViewRegistry::View> views = ViewRegistry::idleItems();
  for (const auto& section : ViewRegistry::sections()) {
    views.insert(views.end(), section.views.begin(), section.views.end());
  }
  for (const ActivityKind kind : allCases<ActivityKind>()) {
    if (const auto view = ViewRegistry::compact(kind)) views.push_back(*view);
  }
  for (const ViewRegistry::View& view : views) {
    SCOPED_TRACE(view.source.toString().toStdString());
    ASSERT_TRUE(models.contains(view.provider));
    QQmlComponent component(&engine, view.source);
    if (component.isError()) {
      ADD_FAILURE() << component.errorString().toStdString();
      continue;
    }
    std::unique_ptr<QObject> item(component.createWithInitialProperties(
        {{"model", QVariant::fromValue(models.at(view.provider))}}));
    EXPECT_TRUE(item) << component.errorString().toStdString();
  }
  for (const QQmlError& warning : warnings) ADD_FAILURE() << warning.toString().toStdString();
}

}  // namespace
}  // namespace tindra
