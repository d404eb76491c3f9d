#include "calendar/today_agenda.h"

#include <unicode/coll.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>

namespace tindra {

namespace {

constexpr double millisecondsPerSecond = 1000;
constexpr double secondsPerDay = 86400;

// The POSIX locale (what a "C" environment gives) collates by code point, case first; titles
// want the common readable order instead.
const icu::Locale& readableLocale(const icu::Locale& locale) {
  return std::string_view(locale.getVariant()) == "POSIX" ? icu::Locale::getRoot() : locale;
}

// Compares titles by the locale's collation with numbers by value and case ignored; falls back
// to code point order when the locale has no collator.
class TitleOrder {
 public:
  explicit TitleOrder(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    collator_.reset(icu::Collator::createInstance(readableLocale(locale), status));
    if (U_FAILURE(status)) {
      collator_.reset();
      return;
    }
    collator_->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    collator_->setStrength(icu::Collator::SECONDARY);
  }

  bool less(const std::string& a, const std::string& b) const {
    if (!collator_) return a < b;
    UErrorCode status = U_ZERO_ERROR;
    UCollationResult result =
        collator_->compareUTF8(icu::StringPiece(a.data(), static_cast<int32_t>(a.size())),
                               icu::StringPiece(b.data(), static_cast<int32_t>(b.size())), status);
    if (U_FAILURE(status)) return a < b;
    return result == UCOL_LESS;
  }

 private:
  std::unique_ptr<icu::Collator> collator_;
};

TodayAgenda::Status statusAt(const CalendarEventInfo& event, double now) {
  if (event.isAllDay) return TodayAgenda::Status::upcoming;
  if (event.end <= now) return TodayAgenda::Status::ended;
  if (event.start <= now) return TodayAgenda::Status::now;
  return TodayAgenda::Status::upcoming;
}

}  // namespace

TodayAgenda::Interval TodayAgenda::day(double now, const icu::Calendar& calendar) {
  std::unique_ptr<icu::Calendar> local(calendar.clone());
  UErrorCode status = U_ZERO_ERROR;
  local->setTime(now * millisecondsPerSecond, status);
  // A midnight the clocks skip resolves to the first moment after the gap.
  local->set(UCAL_HOUR_OF_DAY, 0);
  local->set(UCAL_MINUTE, 0);
  local->set(UCAL_SECOND, 0);
  local->set(UCAL_MILLISECOND, 0);
  double start = local->getTime(status) / millisecondsPerSecond;
  if (U_FAILURE(status)) {
    // Without a working calendar, the day in UTC.
    start = std::floor(now / secondsPerDay) * secondsPerDay;
    return {start, start + secondsPerDay};
  }
  local->add(UCAL_DATE, 1, status);
  double end = local->getTime(status) / millisecondsPerSecond;
  if (U_FAILURE(status)) end = start + secondsPerDay;
  return {start, end};
}

std::vector<TodayAgenda::Entry> TodayAgenda::entries(std::span<const CalendarEventInfo> events,
                                                     double now, const icu::Calendar& calendar,
                                                     const icu::Locale& locale) {
  const Interval today = day(now, calendar);
  std::vector<Entry> kept;
  for (const CalendarEventInfo& event : events) {
    if (event.isDeclinedOrCancelled) continue;
    if (event.start < today.end && event.end > today.start) {
      kept.push_back({event, statusAt(event, now)});
    }
  }
  const TitleOrder titles(locale);
  std::stable_sort(kept.begin(), kept.end(), [&](const Entry& a, const Entry& b) {
    if (a.event.isAllDay != b.event.isAllDay) return a.event.isAllDay;
    if (a.event.start != b.event.start) return a.event.start < b.event.start;
    return titles.less(a.event.title, b.event.title);
  });
  return kept;
}

}  // namespace tindra
