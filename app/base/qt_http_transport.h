// QtHTTPTransport: the weather client's HTTP transport over Qt Network. Answers every HTTP
// status as a response (the client reads 304, 429 and 503 itself); tells a network that cannot
// be reached apart from other failures; stamps each answer with the clock.
#pragma once

#include <QNetworkAccessManager>
#include <functional>

#include "weather/http_transport.h"

namespace tindra {

class QtHTTPTransport final : public HTTPTransport {
 public:
  using Clock = std::function<double()>;  // seconds since 1970
  // Larger answers are cut off and count as no answer: a forecast is a few hundred kilobytes.
  static constexpr qint64 maxBodyBytes = 8 * 1024 * 1024;

  QtHTTPTransport(QNetworkAccessManager& network, Clock now);

  void send(const HTTPRequest& request, Completion completion) override;

 private:
  QNetworkAccessManager& network_;
  Clock now_;
};

}  // namespace tindra
