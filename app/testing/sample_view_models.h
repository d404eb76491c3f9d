// SampleViewModels: every provider's view model holding something to show (a track, a meeting,
// earbuds, the weather, a Focus, a message and a ringing call, two tray items, a level), for tests
// that draw the views.
#pragma once

#include <QString>
#include <map>

#include "banners/banner_view_model.h"
#include "calendar/calendar_view_model.h"
#include "files/file_tray_view_model.h"
#include "focus/focus_view_model.h"
#include "levels/hud_view_model.h"
#include "media/now_playing_view_model.h"
#include "power/accessory_view_model.h"
#include "power/battery_view_model.h"
#include "weather/weather_view_model.h"

namespace tindra {

struct SampleViewModels {
  SampleViewModels();

  // Each model by the name of the provider it stands for.
  std::map<QString, QObject*> byProvider();

  NowPlayingViewModel media{[](const NowPlayingCommand&) {}};
  BatteryViewModel battery;
  AccessoryViewModel accessories;
  HudViewModel hud;
  CalendarViewModel calendar{[](const QString&) { return false; }};
  WeatherViewModel weather;
  FocusViewModel focus;
  BannerViewModel banners{[] {}};
  FileTrayViewModel files{{[](const QString&) {}, [](const QString&) {}, [] {}, [] {}}};
};

}  // namespace tindra
