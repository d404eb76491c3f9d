#include "weather/met_weather_client.h"

#include <array>
#include <charconv>
#include <utility>

#include "weather/http_date.h"
#include "weather/met_forecast_parser.h"

namespace tindra {
namespace {

WeatherFetchFailure transportFailure(HTTPTransportError error) {
  // Only a missing connection is "offline"; a garbled or refused exchange says nothing about
  // the network, so it counts as a bad answer.
  return error == HTTPTransportError::unreachable ? WeatherFetchFailure::offline()
                                                  : WeatherFetchFailure::invalidResponse();
}

WeatherFetchResult failed(WeatherFetchFailure failure) {
  return {WeatherFetchResult::Failed{failure}};
}

}  // namespace

std::string formatCoordinateDegrees(double degrees) {
  // to_chars ignores the C locale, so the separator is a point even under de_DE.
  std::array<char, 400> buffer{};  // room for the largest double written in full
  const double rounded = GeoCoordinate{degrees, 0}.roundedToHundredths().latitude;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded,
                                 std::chars_format::fixed, 2)
                       .ptr;
  return {buffer.data(), end};
}

std::string METWeatherClient::makeUserAgent(std::string_view version, std::string_view webAddress,
                                            std::string_view supportEmail) {
  std::string agent = "Tindra/";
  agent.append(version).append(" (+").append(webAddress).append("; ");
  agent.append(supportEmail).append(")");
  return agent;
}

HTTPRequest METWeatherClient::request(double latitude, double longitude,
                                      const std::optional<WeatherSnapshot>& previous) const {
  HTTPRequest request;
  request.url = std::string(forecastAddress) + "?lat=" + formatCoordinateDegrees(latitude) +
                "&lon=" + formatCoordinateDegrees(longitude);
  request.timeout = timeout;
  request.headers = {{"User-Agent", userAgent}, {"Accept", "application/json"}};
  if (previous && previous->lastModified) {
    request.headers.emplace_back("If-Modified-Since", *previous->lastModified);
  }
  return request;
}

WeatherFetchResult METWeatherClient::interpret(
    const std::expected<HTTPResponse, HTTPTransportError>& answer, const GeoCoordinate& coordinate,
    const std::optional<WeatherSnapshot>& previous) {
  if (!answer) return failed(transportFailure(answer.error()));
  const HTTPResponse& response = *answer;

  std::optional<double> expiresAt;
  if (const auto expires = headerValue(response.headers, "Expires")) {
    expiresAt = parseHTTPDate(*expires);
  }
  std::optional<std::string> lastModified;
  if (const auto text = headerValue(response.headers, "Last-Modified")) lastModified.emplace(*text);

  switch (response.status) {
    case 200: {
      auto snapshot = METForecastParser::parse(response.body, coordinate, response.receivedAt,
                                               response.receivedAt, expiresAt, lastModified);
      if (!snapshot) return failed(WeatherFetchFailure::invalidResponse());
      return {WeatherFetchResult::Updated{std::move(*snapshot)}};
    }
    case 304: {
      if (!previous) return failed(WeatherFetchFailure::invalidResponse());
      WeatherSnapshot renewed = *previous;
      renewed.fetchedAt = response.receivedAt;
      renewed.expiresAt = expiresAt;
      // An unchanged document keeps its old date when the 304 leaves the header out.
      if (lastModified) renewed.lastModified = std::move(lastModified);
      return {WeatherFetchResult::NotModified{std::move(renewed)}};
    }
    case 429:
    case 503:
      return failed(WeatherFetchFailure::throttled());
    default:
      return failed(WeatherFetchFailure::httpStatus(response.status));
  }
}

void METWeatherClient::fetch(double latitude, double longitude,
                             std::optional<WeatherSnapshot> previous,
                             std::function<void(WeatherFetchResult)> completion) const {
  const GeoCoordinate coordinate = GeoCoordinate{latitude, longitude}.roundedToHundredths();
  // Built before the call: the order in which a call's arguments are made is unspecified, and the
  // completion below takes `previous` away.
  const HTTPRequest sent = request(latitude, longitude, previous);
  transport->send(sent,
                  [coordinate, previous = std::move(previous), completion = std::move(completion)](
                      std::expected<HTTPResponse, HTTPTransportError> answer) {
                    completion(interpret(answer, coordinate, previous));
                  });
}

}  // namespace tindra
