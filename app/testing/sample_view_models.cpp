#include "testing/sample_view_models.h"

#include <QColor>

namespace tindra {

SampleViewModels::SampleViewModels() {
  NowPlayingSnapshot track;
  track.title = "Invented Track";
  track.artist = "Tindra Tests";
  track.isPlaying = true;
  track.duration = 200;
  media.setSnapshot(track);
  battery.setReading(BatteryStatus(76));
  BluetoothAccessory buds;
  buds.name = "Buds";
  buds.kind = BluetoothAccessoryKind::airPodsPro;
  buds.battery = {80, 70, 40, std::nullopt};
  accessories.setAccessories({buds});
  accessories.setNotice({AccessoryNotice::Kind::connected, buds, std::nullopt});
  hud.show(HUDState(HUDKind::volume, 0.5), HUDBarMotion::settle(), HUDBarStyle::ring,
           HUDTint::level);
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
  weather.setState({true, true, "7 °C", "Partly cloudy", "cloud.sun.rain.fill",
                    "10 % chance of precipitation", "High 9 °C · Low 2 °C", "Sunset 16:42",
                    "GeoClue", ""});
  focus.set(FocusPresentation::Shown{"Deep Work", FocusSymbol::book},
            FocusPresentation::Shown{"Deep Work", FocusSymbol::book});
  banners.setMessage(BannerViewModel::Message{"Chat", "Ana", "Hi", false, "Open Chat"});
  banners.setRinging(true, "Phone");
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
}

std::map<QString, QObject*> SampleViewModels::byProvider() {
  return {{"media", &media},       {"battery", &battery},
          {"hud", &hud},           {"accessories", &accessories},
          {"calendar", &calendar}, {"weather", &weather},
          {"focus", &focus},       {"banners", &banners},
          {"files", &files}};
}

}  // namespace tindra
