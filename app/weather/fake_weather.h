// The invented weather for the demo, screenshots and tests, chosen only when TINDRA_FAKE names
// "weather": a position in Oslo, and a forecast service that answers every request at once
// with a partly cloudy 7.5 °C and a 10 % chance of rain for the coming hour. Its check says that
// nothing shown is real.
#pragma once

#include <functional>

#include "weather/http_transport.h"
#include "weather/location_source.h"

namespace tindra {

class FakeLocationSource final : public LocationSource {
  Q_OBJECT

 public:
  explicit FakeLocationSource(QObject* parent = nullptr) : LocationSource(parent) {
    publish(GeoCoordinate{59.9139, 10.7522});  // Oslo
    setCheck(DiagnosticsLog::Outcome::degraded,
             Sentence(QT_TR_NOOP("an invented position (TINDRA_FAKE)"), tr));
  }
  void start() override {}
};

class FakeForecastTransport final : public HTTPTransport {
 public:
  using Clock = std::function<double()>;  // seconds since 1970
  explicit FakeForecastTransport(Clock now) : now_(std::move(now)) {}
  void send(const HTTPRequest& request, Completion completion) override;

 private:
  Clock now_;
};

}  // namespace tindra
