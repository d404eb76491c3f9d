// PrecipitationSummary: the one precipitation line the opened notch shows under the forecast,
// made from a snapshot's chance, amount and period length, with the figures already rounded for
// display.
#pragma once

#include <variant>

#include "weather/weather_snapshot.h"

namespace tindra {

struct PrecipitationSummary {
  struct Chance {
    int percent;
    friend bool operator==(const Chance&, const Chance&) = default;
  };
  struct Amount {
    double millimetres;  // to one decimal
    int hours;
    friend bool operator==(const Amount&, const Amount&) = default;
  };
  struct None {
    int hours;
    friend bool operator==(const None&, const None&) = default;
  };
  struct Unknown {
    friend bool operator==(const Unknown&, const Unknown&) = default;
  };
  using Value = std::variant<Chance, Amount, None, Unknown>;
  Value value;

  // An amount that shows as at least 0.1 mm wins (it says more than a chance); otherwise a chance
  // that shows as at least 1 %; otherwise "none" when either figure is known and shows as zero.
  // Without a period length, or without any usable figure, the outlook is unknown.
  static PrecipitationSummary of(const WeatherSnapshot& snapshot);

  friend bool operator==(const PrecipitationSummary&, const PrecipitationSummary&) = default;
};

}  // namespace tindra
