#include "calendar/calendar_provider.h"
#include <QDesktopServices>
#include "base/backend_selection.h"
#include "base/wall_clock.h"
#include "calendar/fake_calendar_backend.h"

#include <unicode/gregocal.h>

#include <algorithm>
#include <cmath>

#include "base/activity_center.h"
#include "base/diagnostics_log.h"
#include "base/logging_categories.h"
#include "base/qt_text.h"
#include "calendar/calendar_compact.h"
#include "calendar/calendar_privacy.h"
#include "calendar/calendar_texts.h"
#include "calendar/departure_advisor.h"
#include "calendar/event_countdown.h"
#include "calendar/today_agenda.h"
#include "calendar/upcoming_event_sound_log.h"
#include "settings/settings_keys.h"

namespace tindra {

namespace {

// Checked again at least this often, so a clock set forward or a resume from sleep is caught.
constexpr double longestWait = 3600;
constexpr double day = 86400;

// The first moment after `now` that lies a whole number of minutes from `anchor`: when a
// countdown measured from `anchor` shows its next figure.
double nextMinuteFrom(double anchor, double now) {
  return anchor + 60.0 * (std::floor((now - anchor) / 60.0) + 1.0);
}

QColor colorOf(const std::optional<CalendarEventInfo::Color>& color) {
  return color ? QColor::fromRgbF(static_cast<float>(color->red), static_cast<float>(color->green),
                                  static_cast<float>(color->blue))
               : QColor(0x0a, 0x84, 0xff);
}

QString serviceOf(const CalendarEventInfo& event) {
  return event.meetingLink ? CalendarTexts::serviceName(event.meetingLink->service) : QString();
}

std::unique_ptr<icu::Calendar> userCalendar() {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(status));
  if (U_SUCCESS(status) && calendar) return calendar;
  status = U_ZERO_ERROR;
  return std::make_unique<icu::GregorianCalendar>(status);
}

}  // namespace

CalendarProvider::CalendarProvider(ProviderContext context,
                                   std::unique_ptr<CalendarBackend> backend,
                                   std::unique_ptr<TravelTimeEstimator> travel,
                                   std::shared_ptr<SoundPlayer> sounds, Clock now, OpenURL open,
                                   std::unique_ptr<OneShotScheduler> scheduler, QObject* parent)
    : Provider(context, id, parent),
      backend_(std::move(backend)),
      travel_(std::move(travel)),
      sounds_(std::move(sounds)),
      now_(std::move(now)),
      open_(std::move(open)),
      calendar_(userCalendar()),
      viewModel_([this](const QString& id) { return join(id); }),
      nextChange_([this] { update(); }, std::move(scheduler)) {
  // Queued: a backend reads again when the window moves, which happens inside an update.
  connect(backend_.get(), &CalendarBackend::changed, this, &CalendarProvider::update,
          Qt::QueuedConnection);
  connect(backend_.get(), &CalendarBackend::checkChanged, this, &CalendarProvider::recordCheck);
}

CalendarProvider::~CalendarProvider() = default;

void CalendarProvider::start() {
  started_ = true;
  std::vector<std::string> names;
  for (std::string_view name :
       {settings::calendarEnabled.name, settings::calendarLeadMinutes.name,
        settings::calendarExcludedIdentifiers.name, settings::calendarTimeFormat.name,
        settings::calendarPrivacyMode.name, settings::calendarEventSound.name,
        settings::remindersEnabled.name, settings::travelTimeEnabled.name,
        settings::travelTransport.name, settings::travelBufferMinutes.name}) {
    names.emplace_back(name);
  }
  observation_ = settings().observe(std::move(names), [this](std::string_view name) {
    if (name == settings::calendarEnabled.name) {
      enabledChanged();
    } else {
      update();
    }
  });
  enabledChanged();
}

void CalendarProvider::enabledChanged() {
  if (settings().read(settings::calendarEnabled) && !backendStarted_) {
    backendStarted_ = true;
    followWindow(now_());
    backend_->start();
  }
  recordCheck();
  update();
}

void CalendarProvider::recordCheck() {
  const ServiceCheck check =
      settings().read(settings::calendarEnabled)
          ? backend_->check()
          : ServiceCheck{DiagnosticsLog::Outcome::ok,
                         Sentence(QT_TR_NOOP("the calendar is off in Settings"), tr)};
  diagnostics().record(lcCalendar(), name(), check.outcome, check.text);
}

UpcomingEventPolicy CalendarProvider::policy() const {
  UpcomingEventPolicy policy;
  policy.leadTime = static_cast<double>(std::clamp<std::int64_t>(
                        settings().read(settings::calendarLeadMinutes), 0, 24 * 60)) *
                    60.0;
  return policy;
}

// From yesterday (an all-day event or a long meeting that began then) to a week after today.
void CalendarProvider::followWindow(double now) {
  const TodayAgenda::Interval today = TodayAgenda::day(now, *calendar_);
  if (windowStart_ == today.start) return;
  windowStart_ = today.start;
  backend_->setWindow(today.start - day, today.end + daysAhead * day);
}

CalendarProvider::Shown CalendarProvider::shown() const {
  const std::vector<std::string> excluded = settings().read(settings::calendarExcludedIdentifiers);
  const bool reminders = settings().read(settings::remindersEnabled);
  Shown shown;
  for (CalendarContents& calendar : backend_->calendars()) {
    if (std::ranges::find(excluded, calendar.source.id.toStdString()) != excluded.end()) continue;
    std::ranges::move(calendar.events, std::back_inserter(shown.events));
    if (reminders) std::ranges::move(calendar.reminders, std::back_inserter(shown.reminders));
  }
  return shown;
}

void CalendarProvider::update() {
  if (!started_) return;
  const double now = now_();
  if (!settings().read(settings::calendarEnabled)) {
    offer(std::nullopt);
    viewModel_.setState({});
    nextChange_.cancel();
    return;
  }
  followWindow(now);
  const Shown shown = this->shown();
  const std::optional<FeaturedEvent> featured = policy().featured(shown.events, now);
  offer(featured);
  soundIfDue(shown.events, now);
  viewModel_.setState(state(shown, now, featured));
  aim(shown.events, now, featured);
}

void CalendarProvider::offer(const std::optional<FeaturedEvent>& featured) {
  if (!featured) {
    if (offered_) activities().offer(ActivityEvent::ended(ActivityKind::upcomingEvent));
    offered_.reset();
    return;
  }
  // Offered again when another event comes first or this one moves.
  const UpcomingEventPolicy policy = this->policy();
  std::pair offer{featured->event.id, policy.closingDate(featured->event)};
  if (offered_ == offer) return;
  offered_ = std::move(offer);
  qCInfo(lcCalendar).noquote() << "featured event" << toQString(featured->event.id);
  activities().offer(
      ActivityEvent::began(ActivityKind::upcomingEvent, policy.activityDuration(*featured)));
}

void CalendarProvider::soundIfDue(const std::vector<CalendarEventInfo>& events, double now) {
  if (!settings().read(settings::calendarEventSound)) return;
  UpcomingEventSoundLog log =
      UpcomingEventSoundLog::fromJSON(JSONValue(settings().read(settings::calendarEventSoundLog)));
  const UpcomingEventSoundLog before = log;
  const bool due = log.recordDue(events, now, policy().leadTime);
  if (log != before) (void)settings().write(settings::calendarEventSoundLog, log.toJSON());
  if (due && sounds_ && settings().read(settings::playSounds)) {
    sounds_->play(QStringLiteral("tindra-event"));
  }
}

// The next event with a place to go to, when travel times are wanted and can be had; its
// travel time is asked for once.
std::optional<CalendarEventInfo> CalendarProvider::departureEvent(
    const std::vector<CalendarEventInfo>& events, double now) {
  if (!settings().read(settings::travelTimeEnabled) || !travel_->available()) return std::nullopt;
  std::optional<CalendarEventInfo> next = UpcomingEventPolicy::nextEvent(events, now);
  if (!next || !DepartureAdvisor::needsTravelTime(*next, now)) return std::nullopt;
  if (!travelTimes_.contains(next->id) && travelAsked_ != next->id) {
    travelAsked_ = next->id;
    const QString destination =
        toQString(DepartureAdvisor::destination(next->location).value_or(""));
    travel_->estimate(next->coordinate, destination, settings().read(settings::travelTransport),
                      [this, id = next->id](std::optional<double> seconds) {
                        if (seconds) travelTimes_[id] = *seconds;
                        update();
                      });
  }
  return next;
}

CalendarViewModel::State CalendarProvider::state(const Shown& shown, double now,
                                                 const std::optional<FeaturedEvent>& featured) {
  const CalendarPrivacy privacy{settings().read(settings::calendarPrivacyMode),
                                tr("Event").toStdString(), tr("Reminder").toStdString()};
  const EventTimeFormat format = settings().read(settings::calendarTimeFormat);
  const QLocale locale;
  CalendarViewModel::State state;
  state.enabled = true;
  if (featured) {
    const CalendarEventInfo event = privacy.apply(featured->event);
    const bool started = featured->phase.phaseCase() == FeaturedEvent::Phase::Case::started;
    state.featured = true;
    state.featuredID = toQString(event.id);
    state.title = toQString(event.title);
    state.color = colorOf(event.calendarColor);
    state.earText = CalendarTexts::ear(earText(event, now, format), locale);
    if (showsStartTime(format) && !started) {
      state.earText += QStringLiteral(" · ") + CalendarTexts::clockTime(event.start, locale);
    }
    state.countdown = CalendarTexts::countdown(countdown(event, now));
    state.timeRange = CalendarTexts::timeRange(event.start, event.end, event.isAllDay, locale);
    state.started = started;
    state.joinService = serviceOf(event);
  }
  leaveAt_.reset();
  if (const auto next = departureEvent(shown.events, now)) {
    const auto travelTime = travelTimes_.find(next->id);
    if (travelTime != travelTimes_.end()) {
      const auto plan = DepartureAdvisor::plan(next->start, travelTime->second,
                                               settings().read(settings::travelBufferMinutes));
      if (plan) {
        leaveAt_ = plan->leaveAt;
        state.departure = CalendarTexts::departure(DepartureAdvisor::advice(*plan, now));
      }
    }
  }
  for (const TodayAgenda::Entry& entry : TodayAgenda::entries(shown.events, now, *calendar_)) {
    const TodayAgenda::Entry hidden = privacy.apply(entry);
    const CalendarEventInfo& event = hidden.event;
    state.agenda.append(
        QVariantMap{{QStringLiteral("id"), toQString(event.id)},
                    {QStringLiteral("title"), toQString(event.title)},
                    {QStringLiteral("time"),
                     CalendarTexts::timeRange(event.start, event.end, event.isAllDay, locale)},
                    {QStringLiteral("status"), toQString(rawValue(hidden.status))},
                    {QStringLiteral("color"), colorOf(event.calendarColor)},
                    {QStringLiteral("joinService"), serviceOf(event)}});
  }
  std::vector<ReminderItem> reminders = shown.reminders;
  // Open to-dos first, the soonest due first, those without a date after them.
  std::ranges::stable_sort(reminders, [](const ReminderItem& a, const ReminderItem& b) {
    return std::tuple(a.isDone, !a.due, a.due.value_or(0)) <
           std::tuple(b.isDone, !b.due, b.due.value_or(0));
  });
  for (const ReminderItem& reminder : reminders) {
    QString due;
    if (reminder.due) {
      const QDateTime at =
          QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(*reminder.due * 1000));
      due = reminder.dueIsDate ? locale.toString(at.date(), QLocale::ShortFormat)
                               : locale.toString(at, QLocale::ShortFormat);
    }
    state.reminders.append(QVariantMap{
        {QStringLiteral("title"), toQString(privacy.applyToReminderTitle(reminder.title))},
        {QStringLiteral("due"), due},
        {QStringLiteral("done"), reminder.isDone},
        {QStringLiteral("color"), colorOf(reminder.calendarColor)}});
  }
  return state;
}

void CalendarProvider::aim(const std::vector<CalendarEventInfo>& events, double now,
                           const std::optional<FeaturedEvent>& featured) {
  const UpcomingEventPolicy policy = this->policy();
  const TodayAgenda::Interval today = TodayAgenda::day(now, *calendar_);
  nextChange_.aim(now, std::min(now + longestWait, today.end), [&](const auto& consider) {
    if (const auto lead = UpcomingEventPolicy::nextLeadPeriodStart(events, now, policy.leadTime)) {
      consider(*lead);
    }
    if (featured) {
      consider(policy.closingDate(featured->event));
      consider(nextMinuteFrom(featured->event.start, now));
      consider(nextMinuteFrom(featured->event.end, now));
    }
    for (const CalendarEventInfo& event : events) {  // the agenda's statuses
      if (event.start < today.end) consider(event.start);
      if (event.end < today.end) consider(event.end);
    }
    if (leaveAt_) consider(nextMinuteFrom(*leaveAt_, now));
  });
}

bool CalendarProvider::join(const QString& id) {
  for (const CalendarEventInfo& event : shown().events) {
    if (toQString(event.id) != id || !event.meetingLink) continue;
    qCInfo(lcCalendar).noquote() << "joining" << toQString(event.meetingLink->url) << "for" << id;
    return open_(QUrl(toQString(event.meetingLink->url)));
  }
  return false;
}

std::unique_ptr<CalendarProvider> CalendarProvider::make(ProviderContext& context) {
  SharedBackends& shared = *context.shared;
  return std::make_unique<CalendarProvider>(
      context,
      chooseBackend(
          id, shared, [] { return std::make_unique<FakeCalendarBackend>(secondsSince1970()); },
          [&] { return CalendarBackend::forPlatform(shared); }),
      TravelTimeEstimator::forPlatform(), SoundPlayer::shared(shared), secondsSince1970,
      [](const QUrl& link) { return QDesktopServices::openUrl(link); });
}

ProviderViews CalendarProvider::views() {
  return {.compact = {{.kind = ActivityKind::upcomingEvent,
                       .make = ProviderViews::painted<CalendarCompact, CalendarViewModel>()}},
          .sections = {{.name = QStringLiteral("calendar"),
                        .title = QT_TRANSLATE_NOOP("PinnedSectionsEditor", "Calendar"),
                        .rank = 30,
                        .file = QStringLiteral("calendar/CalendarPanel.qml")}}};
}

}  // namespace tindra
