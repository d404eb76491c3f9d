// The providers Tindra runs, in the order they start. Adding a provider is one folder of its own
// and one line here; the registry makes it, starts it, finds its views and reaches it by type.
#pragma once

#include "banners/banner_provider.h"
#include "base/provider_set.h"
#include "calendar/calendar_provider.h"
#include "files/file_tray_provider.h"
#include "focus/focus_provider.h"
#include "levels/hud_provider.h"
#include "lockscreen/lock_screen_provider.h"
#include "media/now_playing_provider.h"
#include "power/accessory_provider.h"
#include "power/battery_provider.h"
#include "weather/weather_provider.h"

namespace tindra {

using TindraProviders =
    ProviderSet<NowPlayingProvider, BatteryProvider, HudProvider, AccessoryProvider,
                CalendarProvider, WeatherProvider, FocusProvider, BannerProvider, FileTrayProvider,
                LockScreenProvider>;

}  // namespace tindra
