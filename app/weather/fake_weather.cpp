#include "weather/fake_weather.h"

#include <cmath>
#include <ctime>

namespace tindra {

void FakeForecastTransport::send(const HTTPRequest&, Completion completion) {
  const double now = now_();
  // The forecast step of the current hour, as the service dates its steps.
  const std::time_t hour = static_cast<std::time_t>(std::floor(now / 3600) * 3600);
  std::tm fields{};
  gmtime_r(&hour, &fields);
  char time[32];
  std::strftime(time, sizeof time, "%Y-%m-%dT%H:%M:%SZ", &fields);
  HTTPResponse response;
  response.status = 200;
  response.receivedAt = now;
  response.body =
      std::string(R"({"properties":{"timeseries":[{"time":")") + time +
      R"(","data":{"instant":{"details":{"air_temperature":7.5}},)"
      R"("next_1_hours":{"summary":{"symbol_code":"partlycloudy_day"},)"
      R"("details":{"precipitation_amount":0.0,"probability_of_precipitation":10}}}}]}})";
  completion(std::move(response));
}

}  // namespace tindra
