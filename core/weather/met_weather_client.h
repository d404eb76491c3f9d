// METWeatherClient: the conditional request for MET Norway's "complete" forecast at a position
// rounded to about 1 km, and the reading of its answer into a WeatherFetchResult. The network is
// the given transport; the client itself holds no connection and no clock.
#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "weather/geo_coordinate.h"
#include "weather/http_transport.h"
#include "weather/weather_fetch_result.h"
#include "weather/weather_snapshot.h"

namespace tindra {

struct METWeatherClient {
  static constexpr std::string_view forecastAddress =
      "https://api.met.no/weatherapi/locationforecast/2.0/complete";
  static constexpr double timeout = 60;

  std::string userAgent;  // sent with every request; the service requires one
  std::shared_ptr<HTTPTransport> transport;

  // "Tindra/<version> (+<webAddress>; <supportEmail>)", the identifying agent the service asks for.
  static std::string makeUserAgent(std::string_view version, std::string_view webAddress,
                                   std::string_view supportEmail);

  // The GET request for the position; "If-Modified-Since" only when `previous` kept a
  // "Last-Modified" text.
  HTTPRequest request(double latitude, double longitude,
                      const std::optional<WeatherSnapshot>& previous) const;

  // Reads one answer for the request at `coordinate` (already rounded). A 304 without a kept
  // snapshot cannot answer our request (we sent no condition), so it is an invalid response.
  static WeatherFetchResult interpret(const std::expected<HTTPResponse, HTTPTransportError>& answer,
                                      const GeoCoordinate& coordinate,
                                      const std::optional<WeatherSnapshot>& previous);

  // Sends the request through `transport` and calls `completion` with the interpreted answer.
  void fetch(double latitude, double longitude, std::optional<WeatherSnapshot> previous,
             std::function<void(WeatherFetchResult)> completion) const;
};

// "59.91": two decimals, half away from zero, always with a point.
std::string formatCoordinateDegrees(double degrees);

}  // namespace tindra
