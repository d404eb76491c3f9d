#include "calendar/calendar_texts.h"

#include <QCoreApplication>
#include <QDateTime>

namespace tindra::CalendarTexts {

namespace {

// lupdate files these texts under the namespace they are written in, so that is the context.
QString tr(const char* text) {
  return QCoreApplication::translate("tindra::CalendarTexts", text);
}

QString minutesText(std::int64_t minutes) {
  const HoursAndMinutes parts = hoursAndMinutes(minutes);
  if (parts.hours == 0) return tr("%1 min").arg(parts.minutes);
  if (parts.minutes == 0) return tr("%1 h").arg(parts.hours);
  return tr("%1 h %2 min").arg(parts.hours).arg(parts.minutes);
}

// Some locales' short format (C's among them) carries seconds, which a meeting never has.
QString meetingTimeFormat(const QLocale& locale) {
  QString format = locale.timeFormat(QLocale::ShortFormat);
  format.remove(QLatin1String(":ss"));
  return format;
}

QTime localTime(double date) {
  return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(date * 1000)).time();
}

}  // namespace

QString clockTime(double date, const QLocale& locale) {
  return locale.toString(localTime(date), meetingTimeFormat(locale));
}

QString ear(const EarText& ear, const QLocale& locale) {
  switch (ear.earCase()) {
    case EarText::Case::minutes:
      return tr("%1 min").arg(ear.count());
    case EarText::Case::hours:
      return tr("%1 h").arg(ear.count());
    case EarText::Case::startTime:
      return clockTime(ear.date(), locale);
    case EarText::Case::now:
      return tr("Now");
  }
  return {};
}

QString countdown(const EventCountdown& countdown) {
  switch (countdown.countdownCase()) {
    case EventCountdown::Case::startsIn:
      return tr("in %1").arg(minutesText(countdown.minutes()));
    case EventCountdown::Case::underWay:
      return tr("%1 left").arg(minutesText(countdown.minutesLeft()));
    case EventCountdown::Case::ended:
      return tr("Ended");
  }
  return {};
}

QString departure(const DepartureAdvice& advice) {
  switch (advice.adviceCase()) {
    case DepartureAdvice::Case::leaveIn:
      return tr("Leave in %1").arg(minutesText(advice.minutes()));
    case DepartureAdvice::Case::late:
      return tr("%1 late").arg(minutesText(advice.minutes()));
    case DepartureAdvice::Case::leaveNow:
      return tr("Leave now");
  }
  return {};
}

// A range within one half of a 12-hour day names the half once, on the side the locale writes
// it: "9:30–10:00 AM", not "9:30 AM–10:00 AM", which is too wide for the agenda's time column.
QString timeRange(double start, double end, bool allDay, const QLocale& locale) {
  if (allDay) return tr("All day");
  const QString format = meetingTimeFormat(locale);
  const QTime from = localTime(start);
  const QTime to = localTime(end);
  QString first = locale.toString(from, format);
  QString last = locale.toString(to, format);
  const QString half = from.hour() < 12 ? locale.amText() : locale.pmText();
  if ((from.hour() < 12) == (to.hour() < 12) && !half.isEmpty()) {
    if (first.endsWith(half) && last.endsWith(half)) {
      first = first.chopped(half.size()).trimmed();
    } else if (first.startsWith(half) && last.startsWith(half)) {
      last = last.sliced(half.size()).trimmed();
    }
  }
  return first + QStringLiteral("–") + last;
}

QString serviceName(MeetingService service) {
  switch (service) {
    case MeetingService::zoom:
      return QStringLiteral("Zoom");
    case MeetingService::googleMeet:
      return QStringLiteral("Google Meet");
    case MeetingService::microsoftTeams:
      return QStringLiteral("Microsoft Teams");
    case MeetingService::webex:
      return QStringLiteral("Webex");
    case MeetingService::faceTime:
      return QStringLiteral("FaceTime");
  }
  return {};
}

}  // namespace tindra::CalendarTexts
