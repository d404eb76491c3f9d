// The one place where each provider's backend is chosen: the fake one when TINDRA_FAKE names the
// provider, else the platform's real one, else a do-nothing one that says why it is there.
#pragma once

#include <QNetworkAccessManager>
#include <memory>

#include "banners/application_opener.h"
#include "banners/notification_source.h"
#include "base/sound_player.h"
#include "calendar/calendar_backend.h"
#include "calendar/travel_time_estimator.h"
#include "focus/focus_status_source.h"
#include "levels/hud_provider.h"
#include "lockscreen/lock_state_source.h"
#include "media/adapter_probe.h"
#include "media/now_playing_provider.h"
#include "media/process_tap_session.h"
#include "power/accessory_backend.h"
#include "power/battery_backend.h"
#include "visibility/visibility_source.h"
#include "weather/http_transport.h"
#include "weather/location_source.h"

namespace tindra {

std::unique_ptr<BatteryBackend> makeBatteryBackend();
std::unique_ptr<AccessoryBackend> makeAccessoryBackend();
// The invented calendars, else iCalendar files, folders and addresses. `now` gives seconds since
// 1970.
std::unique_ptr<CalendarBackend> makeCalendarBackend(const std::function<double()>& now);
// Travel times for the departure advice; this platform has no routing service yet.
std::unique_ptr<TravelTimeEstimator> makeTravelTimeEstimator();
// The weather's position (GeoClue; the invented one for the fake) and the forecast service's
// transport over `network`.
struct WeatherBackend {
  std::unique_ptr<LocationSource> location;
  std::shared_ptr<HTTPTransport> transport;
};
WeatherBackend makeWeatherBackend(QNetworkAccessManager& network,
                                  const std::function<double()>& now);
// The notice sounds, one player for every provider; none where nothing can play them.
std::shared_ptr<SoundPlayer> makeSoundPlayer();
// The indicator's output volume, display and keyboard lights, and keys. The keys are never
// fake: with TINDRA_FAKE=hud the real keys step the invented levels.
HudBackends makeHudBackends();

// The desktop's do-not-disturb: GNOME's setting on GNOME, else the notification server's
// Inhibited property; shared by the Focus and banner providers.
std::shared_ptr<FocusStatusSource> makeFocusStatusSource();
// The notifications on the session bus, and what opens their senders.
std::unique_ptr<NotificationSource> makeNotificationSource();
std::unique_ptr<ApplicationOpener> makeApplicationOpener();
// The session's screen lock and screen saver.
std::unique_ptr<LockStateSource> makeLockStateSource();
// The window in front and its full-screen state, where the window system tells it.
std::unique_ptr<VisibilitySource> makeVisibilitySource();

// The now-playing source to make, the self-test to run first (none for the fake) and what
// downloads covers (nothing, for the fake).
struct NowPlayingBackend {
  NowPlayingProvider::SourceFactory makeSource;
  std::unique_ptr<AdapterProbe> probe;
  std::unique_ptr<ArtworkFetcher> artwork;
  std::optional<AdapterLaunch> adapter;         // for the on-request check; none for the fake
  std::unique_ptr<ProcessTapSession> spectrum;  // none for the fake: pseudo bars, marked so
};
NowPlayingBackend makeNowPlayingBackend();

}  // namespace tindra
