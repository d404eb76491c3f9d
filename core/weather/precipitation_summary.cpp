#include "weather/precipitation_summary.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tindra {
namespace {

// A figure the display can use: present, finite and not negative.
std::optional<double> usable(const std::optional<double>& figure) {
  if (!figure || !std::isfinite(*figure) || *figure < 0) return std::nullopt;
  return figure;
}

}  // namespace

PrecipitationSummary PrecipitationSummary::of(const WeatherSnapshot& snapshot) {
  if (!snapshot.precipitationHours) return {Unknown{}};
  const int hours = *snapshot.precipitationHours;
  const std::optional<double> amount = usable(snapshot.precipitationAmount);
  const std::optional<double> chance = usable(snapshot.precipitationChance);
  const double tenthsOfMillimetre = amount ? std::round(*amount * 10) : 0;
  if (tenthsOfMillimetre >= 1) return {Amount{tenthsOfMillimetre / 10, hours}};
  // Percentages above 100 are clamped rather than trusted.
  const double percent = chance ? std::min(std::round(*chance), 100.0) : 0;
  if (percent >= 1) return {Chance{static_cast<int>(percent)}};
  if (amount || chance) return {None{hours}};
  return {Unknown{}};
}

}  // namespace tindra
