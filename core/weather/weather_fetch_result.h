// WeatherFetchResult: what one forecast request came to — a new snapshot, the kept one renewed
// by a "not modified" answer, or a failure (the caller then keeps its old snapshot).
#pragma once

#include <string_view>
#include <variant>

#include "base/enum_table.h"
#include "weather/weather_snapshot.h"

namespace tindra {

struct WeatherFetchFailure {
  enum class Kind {
    httpStatus,       // a status other than 200, 304, 429 and 503, in `statusCode`
    offline,          // the service could not be reached
    throttled,        // 429 or 503
    invalidResponse,  // not an HTTP answer, or a body that does not parse
  };
  Kind kind = Kind::invalidResponse;
  int statusCode = 0;  // only for httpStatus

  static WeatherFetchFailure httpStatus(int code) { return {Kind::httpStatus, code}; }
  static WeatherFetchFailure offline() { return {Kind::offline}; }
  static WeatherFetchFailure throttled() { return {Kind::throttled}; }
  static WeatherFetchFailure invalidResponse() { return {Kind::invalidResponse}; }

  friend bool operator==(const WeatherFetchFailure&, const WeatherFetchFailure&) = default;
};

template <>
struct EnumTable<WeatherFetchFailure::Kind> {
  using E = WeatherFetchFailure::Kind;
  static constexpr std::array cases{
      EnumCase{E::httpStatus, "httpStatus"}, EnumCase{E::offline, "offline"},
      EnumCase{E::throttled, "throttled"}, EnumCase{E::invalidResponse, "invalidResponse"}};
};

struct WeatherFetchResult {
  struct Updated {
    WeatherSnapshot snapshot;
    friend bool operator==(const Updated&, const Updated&) = default;
  };
  struct NotModified {
    WeatherSnapshot snapshot;
    friend bool operator==(const NotModified&, const NotModified&) = default;
  };
  struct Failed {
    WeatherFetchFailure failure;
    friend bool operator==(const Failed&, const Failed&) = default;
  };
  std::variant<Updated, NotModified, Failed> value;

  friend bool operator==(const WeatherFetchResult&, const WeatherFetchResult&) = default;
};

}  // namespace tindra
