// CalendarProvider ("calendar"): the next meeting and today's agenda from the user's calendars.
// While an event is featured (from the lead time before its start until a while after it) it
// offers the upcomingEvent activity, plays the start sound once per event when the user asked
// for it, and keeps the countdown, the agenda and the to-dos current. One timer, aimed at the
// next moment anything shown changes (a minute of the countdown, a lead period, a start or end,
// midnight), never a fixed tick. Nothing is read while the calendar is off.
#pragma once

#include <unicode/calendar.h>

#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

#include "base/next_change.h"
#include "base/provider.h"
#include "base/provider_views.h"
#include "base/sound_player.h"
#include "calendar/calendar_backend.h"
#include "calendar/calendar_view_model.h"
#include "calendar/featured_event.h"
#include "calendar/travel_time_estimator.h"
#include "calendar/upcoming_event_policy.h"
#include "settings/settings_store.h"

namespace tindra {

class CalendarProvider final : public Provider {
  Q_OBJECT

 public:
  static constexpr std::string_view id = "calendar";
  // With the backends this platform gives it (the fake ones when TINDRA_FAKE names "calendar").
  static std::unique_ptr<CalendarProvider> make(ProviderContext& context);
  static ProviderViews views();

  using Clock = std::function<double()>;  // seconds since 1970
  using OpenURL = std::function<bool(const QUrl&)>;
  // Days after today whose events are read, for the next event and the departure advice.
  static constexpr double daysAhead = 7;

  // `sounds` may be null; `open` hands a meeting link to the desktop's handler. The next update
  // is aimed on `scheduler` (none: a timer).
  CalendarProvider(ProviderContext context, std::unique_ptr<CalendarBackend> backend,
                   std::unique_ptr<TravelTimeEstimator> travel, std::shared_ptr<SoundPlayer> sounds,
                   Clock now, OpenURL open, std::unique_ptr<OneShotScheduler> scheduler = nullptr,
                   QObject* parent = nullptr);
  ~CalendarProvider() override;

  void start() override;
  CalendarViewModel* viewModel() override { return &viewModel_; }
  CalendarBackend& backend() { return *backend_; }
  const TravelTimeEstimator& travel() const { return *travel_; }
  // When the next update is due, seconds since 1970; none while nothing is planned.
  std::optional<double> nextUpdate() const { return nextChange_.next(); }

  // Brings everything up to the clock; the timer and every change call it.
  void update();

 private:
  struct Shown {
    std::vector<CalendarEventInfo> events;
    std::vector<ReminderItem> reminders;
  };
  Shown shown() const;
  void enabledChanged();
  void recordCheck();
  void followWindow(double now);
  void offer(const std::optional<FeaturedEvent>& featured);
  void soundIfDue(const std::vector<CalendarEventInfo>& events, double now);
  void aim(const std::vector<CalendarEventInfo>& events, double now,
           const std::optional<FeaturedEvent>& featured);
  std::optional<CalendarEventInfo> departureEvent(const std::vector<CalendarEventInfo>& events,
                                                  double now);
  CalendarViewModel::State state(const Shown& shown, double now,
                                 const std::optional<FeaturedEvent>& featured);
  UpcomingEventPolicy policy() const;
  bool join(const QString& id);

  std::unique_ptr<CalendarBackend> backend_;
  std::unique_ptr<TravelTimeEstimator> travel_;
  std::shared_ptr<SoundPlayer> sounds_;
  Clock now_;
  OpenURL open_;
  std::unique_ptr<icu::Calendar> calendar_;  // the user's calendar and zone, for "today"
  CalendarViewModel viewModel_;
  SettingsObservation observation_;
  NextChange nextChange_;
  std::optional<double> windowStart_;
  std::optional<std::pair<std::string, double>> offered_;  // featured id and its closing date
  std::map<std::string, double> travelTimes_;  // event id to seconds of travel, as answered
  std::string travelAsked_;                    // the event last asked about
  std::optional<double> leaveAt_;              // of the departure advice shown, if any
  bool started_ = false;
  bool backendStarted_ = false;
};

}  // namespace tindra
