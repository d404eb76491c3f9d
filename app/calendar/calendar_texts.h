// CalendarTexts: the words the calendar views show for the core's countdowns, ear texts and
// departure advice, in one place so they can be translated. Clock times follow the locale.
#pragma once

#include <QLocale>
#include <QString>

#include "calendar/departure_advice.h"
#include "calendar/event_countdown.h"
#include "calendar/event_time_format.h"
#include "calendar/meeting_service.h"

namespace tindra::CalendarTexts {

// "5 min", "1 h", "14:00", "Now".
QString ear(const EarText& ear, const QLocale& locale);
// "in 5 min", "in 1 h 20 min", "27 min left", "Ended".
QString countdown(const EventCountdown& countdown);
// "Leave in 12 min", "Leave now", "3 min late".
QString departure(const DepartureAdvice& advice);
// "09:00–09:30", "9:00–9:30 AM", "11:30 AM–12:30 PM", or "All day".
QString timeRange(double start, double end, bool allDay, const QLocale& locale);
// "14:00" for seconds since 1970, in the local time zone.
QString clockTime(double date, const QLocale& locale);
// The service's name as its owner writes it: "Zoom", "Google Meet", ...
QString serviceName(MeetingService service);

}  // namespace tindra::CalendarTexts
