#include "base/qt_http_transport.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTest>

#include "testing/loopback_http_server.h"
#include "weather/met_weather_client.h"

namespace tindra {
namespace {

QByteArray fixture() {
  QFile file(
      QStringLiteral(TINDRA_SOURCE_DIR "/core/weather/testdata/met-complete-2022-05-18.json"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

// Sends the forecast request to the loopback server instead of the service, path and query kept.
struct ToLoopback final : HTTPTransport {
  ToLoopback(QtHTTPTransport& inner, const LoopbackHTTPServer& server)
      : inner(inner), server(server) {}
  void send(const HTTPRequest& request, Completion completion) override {
    HTTPRequest local = request;
    const QUrl original(QString::fromStdString(request.url));
    local.url = server.url(original.path()).toString().toStdString();
    sent.push_back(request);
    inner.send(local, std::move(completion));
  }
  QtHTTPTransport& inner;
  const LoopbackHTTPServer& server;
  std::vector<HTTPRequest> sent;
};

class QtHTTPTransportTest : public ::testing::Test {
 protected:
  WeatherFetchResult fetch(std::optional<WeatherSnapshot> previous = std::nullopt) {
    std::optional<WeatherFetchResult> result;
    client_.fetch(59.9139, 10.7522, std::move(previous),
                  [&](WeatherFetchResult answer) { result = std::move(answer); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, 5000));
    return result.value_or(WeatherFetchResult{WeatherFetchResult::Failed{}});
  }
  void answer(LoopbackHTTPServer::Response response) {
    server_.setResponse("/weatherapi/locationforecast/2.0/complete", std::move(response));
  }

  static constexpr double now = 1653000000;
  LoopbackHTTPServer server_;
  QNetworkAccessManager network_;
  QtHTTPTransport transport_{network_, [] { return now; }};
  std::shared_ptr<ToLoopback> loopback_ = std::make_shared<ToLoopback>(transport_, server_);
  METWeatherClient client_{"Tindra/0.1.0 (+https://tindra.example; help@tindra.example)",
                           loopback_};
};

TEST_F(QtHTTPTransportTest, ReadsTheRealForecastWithItsCacheDatesAndRenewsItOnNotModified) {
  answer({200,
          {{"Content-Type", "application/json"},
           {"Expires", "Fri, 20 May 2022 00:30:00 GMT"},
           {"Last-Modified", "Thu, 19 May 2022 23:40:05 GMT"}},
          fixture()});
  const WeatherFetchResult first = fetch();
  const auto* updated = std::get_if<WeatherFetchResult::Updated>(&first.value);
  ASSERT_NE(updated, nullptr);
  EXPECT_EQ(updated->snapshot.coordinate, (GeoCoordinate{59.91, 10.75}));
  EXPECT_EQ(updated->snapshot.fetchedAt, now);
  EXPECT_EQ(updated->snapshot.expiresAt, 1653006600);
  EXPECT_EQ(updated->snapshot.lastModified, "Thu, 19 May 2022 23:40:05 GMT");
  const auto& request = server_.requests().last();
  EXPECT_EQ(request.headers["user-agent"],
            "Tindra/0.1.0 (+https://tindra.example; help@tindra.example)");
  EXPECT_EQ(request.headers["accept"], "application/json");
  EXPECT_FALSE(request.headers.contains("if-modified-since"));
  EXPECT_EQ(loopback_->sent.back().url,
            "https://api.met.no/weatherapi/locationforecast/2.0/complete?lat=59.91&lon=10.75");

  answer({304, {{"Expires", "Fri, 20 May 2022 01:00:00 GMT"}}, {}});
  const WeatherFetchResult second = fetch(updated->snapshot);
  const auto* kept = std::get_if<WeatherFetchResult::NotModified>(&second.value);
  ASSERT_NE(kept, nullptr);
  EXPECT_EQ(server_.requests().last().headers["if-modified-since"],
            "Thu, 19 May 2022 23:40:05 GMT");
  EXPECT_EQ(kept->snapshot.temperature, updated->snapshot.temperature);
  EXPECT_EQ(kept->snapshot.expiresAt, 1653008400);
}

TEST_F(QtHTTPTransportTest, ThrottlingBrokenAnswersAndNoServiceAreTold) {
  const auto failure = [&](LoopbackHTTPServer::Response response) {
    answer(std::move(response));
    const WeatherFetchResult result = fetch();
    const auto* failed = std::get_if<WeatherFetchResult::Failed>(&result.value);
    return failed ? std::optional(failed->failure) : std::nullopt;
  };
  EXPECT_EQ(failure({429, {}, "slow down"}), WeatherFetchFailure::throttled());
  EXPECT_EQ(failure({503, {}, {}}), WeatherFetchFailure::throttled());
  EXPECT_EQ(failure({500, {}, {}}), WeatherFetchFailure::httpStatus(500));
  const QByteArray whole = fixture();
  EXPECT_EQ(failure({200, {}, whole.left(whole.size() / 3)}),
            WeatherFetchFailure::invalidResponse());
  EXPECT_EQ(failure({200, {{"Content-Type", "text/html"}}, "<html>Maintenance</html>"}),
            WeatherFetchFailure::invalidResponse());

  // Nothing listens on the port any more: the service cannot be reached.
  QTcpServer closed;
  closed.listen(QHostAddress::LocalHost);
  const quint16 port = closed.serverPort();
  closed.close();
  std::optional<std::expected<HTTPResponse, HTTPTransportError>> answer;
  HTTPRequest request;
  request.url = QStringLiteral("http://127.0.0.1:%1/").arg(port).toStdString();
  transport_.send(request, [&](auto result) { answer = std::move(result); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 5000));
  ASSERT_FALSE(answer->has_value());
  EXPECT_EQ(answer->error(), HTTPTransportError::unreachable);
}

}  // namespace
}  // namespace tindra
