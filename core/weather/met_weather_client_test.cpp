#include "weather/met_weather_client.h"
#include "base/scoped_locale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace tindra {
namespace {

constexpr double kNow = 1'700'000'000;  // 2023-11-14T22:13:20Z

// Answers every request with a canned answer and remembers the request.
struct CannedTransport : HTTPTransport {
  explicit CannedTransport(HTTPResponse response) : answer(std::move(response)) {}
  void send(const HTTPRequest& request, Completion completion) override {
    sent.push_back(request);
    completion(answer);
  }
  HTTPResponse answer;
  std::vector<HTTPRequest> sent;
};

// One step at 22:00Z, near kNow.
std::string forecast() {
  return R"({"properties":{"timeseries":[{"time":"2023-11-14T22:00:00Z","data":{"instant":)"
         R"({"details":{"air_temperature":-1.5}},"next_1_hours":{"summary":)"
         R"({"symbol_code":"lightsnow"},"details":{"precipitation_amount":0.4}}}}]}})";
}

WeatherSnapshot keptSnapshot() {
  WeatherSnapshot snapshot;
  snapshot.coordinate = {59.91, 10.75};
  snapshot.temperature = 4;
  snapshot.fetchedAt = kNow - 3600;
  snapshot.expiresAt = kNow - 1800;
  snapshot.lastModified = "Tue, 14 Nov 2023 20:00:00 GMT";
  return snapshot;
}

HTTPResponse response(int status, HTTPHeaders headers = {}, std::string body = "") {
  return {status, std::move(headers), std::move(body), kNow};
}

METWeatherClient client() {
  return {METWeatherClient::makeUserAgent("0.1.0", "https://tindra.example", "help@tindra.example"),
          nullptr};
}

TEST(METWeatherClient, RequestIgnoresALocaleWithADecimalComma) {
  const ScopedLocale comma(LC_ALL, "de_DE.UTF-8");
  if (!comma.active()) GTEST_SKIP() << "the de_DE.UTF-8 locale is missing (Debian: locales-all)";
  EXPECT_EQ(client().request(59.9139, -10.755, std::nullopt).url,
            "https://api.met.no/weatherapi/locationforecast/2.0/complete?lat=59.91&lon=-10.76");
}

TEST(METWeatherClient, RequestIsExact) {
  const HTTPRequest plain = client().request(59.9139, -10.755, std::nullopt);
  EXPECT_EQ(plain.url,
            "https://api.met.no/weatherapi/locationforecast/2.0/complete?lat=59.91&lon=-10.76");
  EXPECT_EQ(plain.method, "GET");
  EXPECT_EQ(plain.timeout, 60);
  EXPECT_EQ(
      plain.headers,
      (HTTPHeaders{{"User-Agent", "Tindra/0.1.0 (+https://tindra.example; help@tindra.example)"},
                   {"Accept", "application/json"}}));

  WeatherSnapshot withoutDate = keptSnapshot();
  withoutDate.lastModified.reset();
  EXPECT_EQ(client().request(0, 0, withoutDate).headers.size(), 2u);
  const HTTPRequest conditional = client().request(-0.001, 179.999, keptSnapshot());
  EXPECT_EQ(conditional.url,
            "https://api.met.no/weatherapi/locationforecast/2.0/complete?lat=0.00&lon=180.00");
  ASSERT_EQ(conditional.headers.size(), 3u);
  EXPECT_EQ(conditional.headers[2], (std::pair<std::string, std::string>{
                                        "If-Modified-Since", "Tue, 14 Nov 2023 20:00:00 GMT"}));
}

TEST(METWeatherClient, NewDocumentBecomesTheSnapshot) {
  const auto transport = std::make_shared<CannedTransport>(
      response(200,
               {{"expires", "Tue, 14 Nov 2023 22:43:20 GMT"},
                {"LAST-MODIFIED", "Tue, 14 Nov 2023 22:00:00 GMT"}},
               forecast()));
  METWeatherClient weather = client();
  weather.transport = transport;
  std::optional<WeatherFetchResult> result;
  weather.fetch(59.9139, 10.7522, keptSnapshot(), [&](WeatherFetchResult r) { result = r; });
  ASSERT_EQ(transport->sent.size(), 1u);
  ASSERT_TRUE(result.has_value());
  const auto* updated = std::get_if<WeatherFetchResult::Updated>(&result->value);
  ASSERT_NE(updated, nullptr);
  EXPECT_EQ(updated->snapshot.coordinate, (GeoCoordinate{59.91, 10.75}));
  EXPECT_EQ(updated->snapshot.temperature, -1.5);
  EXPECT_EQ(updated->snapshot.condition, WeatherCondition::snow);
  EXPECT_EQ(updated->snapshot.fetchedAt, kNow);
  EXPECT_EQ(updated->snapshot.expiresAt, kNow + 1800);
  EXPECT_EQ(updated->snapshot.lastModified, "Tue, 14 Nov 2023 22:00:00 GMT");
}

// The kept snapshot was once moved into the completion before the request was built from it, so
// the request went out with an empty If-Modified-Since.
TEST(METWeatherClient, FetchSendsTheKeptDateNotAnEmptyOne) {
  const auto transport = std::make_shared<CannedTransport>(response(304, {}));
  METWeatherClient weather = client();
  weather.transport = transport;
  weather.fetch(59.9139, 10.7522, keptSnapshot(), [](WeatherFetchResult) {});
  ASSERT_EQ(transport->sent.size(), 1u);
  EXPECT_EQ(headerValue(transport->sent[0].headers, "If-Modified-Since"),
            "Tue, 14 Nov 2023 20:00:00 GMT");
}

TEST(METWeatherClient, NotModifiedRenewsTheKeptSnapshot) {
  const GeoCoordinate here{59.91, 10.75};
  const auto renewed = METWeatherClient::interpret(
      response(304, {{"Expires", "Tue, 14 Nov 2023 23:13:20 GMT"}}), here, keptSnapshot());
  WeatherSnapshot expected = keptSnapshot();
  expected.fetchedAt = kNow;
  expected.expiresAt = kNow + 3600;
  EXPECT_EQ(renewed, WeatherFetchResult{WeatherFetchResult::NotModified{expected}});

  // A new Last-Modified replaces the kept one; an unreadable Expires counts as absent.
  const auto changed = METWeatherClient::interpret(
      response(304, {{"Expires", "0"}, {"Last-Modified", "later"}}), here, keptSnapshot());
  expected.expiresAt.reset();
  expected.lastModified = "later";
  EXPECT_EQ(changed, WeatherFetchResult{WeatherFetchResult::NotModified{expected}});

  EXPECT_EQ(METWeatherClient::interpret(response(304), here, std::nullopt),
            WeatherFetchResult{WeatherFetchResult::Failed{WeatherFetchFailure::invalidResponse()}});
}

TEST(METWeatherClient, FailuresByStatusAndTransport) {
  const GeoCoordinate here{59.91, 10.75};
  const auto failure = [&](std::expected<HTTPResponse, HTTPTransportError> answer) {
    const auto result = METWeatherClient::interpret(answer, here, keptSnapshot());
    const auto* failed = std::get_if<WeatherFetchResult::Failed>(&result.value);
    return failed == nullptr ? std::nullopt : std::optional(failed->failure);
  };
  EXPECT_EQ(failure(response(429)), WeatherFetchFailure::throttled());
  EXPECT_EQ(failure(response(503)), WeatherFetchFailure::throttled());
  EXPECT_EQ(failure(response(500)), WeatherFetchFailure::httpStatus(500));
  EXPECT_EQ(failure(response(203, {}, forecast())), WeatherFetchFailure::httpStatus(203));
  EXPECT_EQ(failure(response(200, {}, "{}")), WeatherFetchFailure::invalidResponse());
  // A document with nothing near now is as useless as a broken one.
  EXPECT_EQ(failure(HTTPResponse{200, {}, forecast(), kNow + 86400}),
            WeatherFetchFailure::invalidResponse());
  EXPECT_EQ(failure(std::unexpected(HTTPTransportError::unreachable)),
            WeatherFetchFailure::offline());
  EXPECT_EQ(failure(std::unexpected(HTTPTransportError::notHTTP)),
            WeatherFetchFailure::invalidResponse());
  EXPECT_EQ(failure(std::unexpected(HTTPTransportError::other)),
            WeatherFetchFailure::invalidResponse());
}

}  // namespace
}  // namespace tindra
