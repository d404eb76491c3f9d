#include "weather/sun_times.h"

namespace tindra {
namespace {

// The polar moment of a day, or the first of its sunrise and sunset after `now`.
std::optional<SunTimes::Moment> momentAhead(const SolarCalculator::Day& day, double now) {
  if (std::holds_alternative<SolarCalculator::PolarDay>(day)) return SunTimes::MidnightSun{};
  if (std::holds_alternative<SolarCalculator::PolarNight>(day)) return SunTimes::PolarNight{};
  const auto& normal = std::get<SolarCalculator::Normal>(day);
  if (normal.sunrise > now && normal.sunrise <= normal.sunset)
    return SunTimes::Sunrise{normal.sunrise};
  if (normal.sunset > now) return SunTimes::Sunset{normal.sunset};
  if (normal.sunrise > now) return SunTimes::Sunrise{normal.sunrise};
  return std::nullopt;
}

// The day's own moment when it has no future one: its sunset, or its polar case.
SunTimes::Moment lastMoment(const SolarCalculator::Day& day) {
  if (const auto* normal = std::get_if<SolarCalculator::Normal>(&day)) {
    return SunTimes::Sunset{normal->sunset};
  }
  return *momentAhead(day, 0);
}

}  // namespace

SunTimes::Moment SunTimes::next(double now) const {
  if (auto moment = momentAhead(today, now)) return *moment;
  if (!tomorrow) return lastMoment(today);
  if (auto moment = momentAhead(*tomorrow, now)) return *moment;
  return lastMoment(*tomorrow);
}

}  // namespace tindra
