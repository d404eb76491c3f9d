// HTTPTransport: the one network operation the weather client needs, implemented by the app over
// its URL loading (Qt Network on Linux). The core builds the request and reads the answer; it
// never opens a connection itself.
#pragma once

#include <expected>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/enum_table.h"

namespace tindra {

using HTTPHeaders = std::vector<std::pair<std::string, std::string>>;

// The first value of header `name`, compared case-insensitively.
std::optional<std::string_view> headerValue(const HTTPHeaders& headers, std::string_view name);

struct HTTPRequest {
  std::string url;
  std::string method = "GET";
  HTTPHeaders headers;  // in the order they are sent
  double timeout = 60;  // seconds; the protocol's default cache policy applies

  friend bool operator==(const HTTPRequest&, const HTTPRequest&) = default;
};

struct HTTPResponse {
  int status = 0;
  HTTPHeaders headers;
  std::string body;
  double receivedAt = 0;  // when the answer arrived, seconds since 1970, stamped by the transport
};

// Why a request got no HTTP answer.
enum class HTTPTransportError {
  unreachable,  // no network, host not found, connection refused or timed out
  notHTTP,      // an answer came, but it was not a readable HTTP response
  other,        // anything else (TLS failure, cancelled, protocol error)
};

template <>
struct EnumTable<HTTPTransportError> {
  static constexpr std::array cases{EnumCase{HTTPTransportError::unreachable, "unreachable"},
                                    EnumCase{HTTPTransportError::notHTTP, "notHTTP"},
                                    EnumCase{HTTPTransportError::other, "other"}};
};

class HTTPTransport {
 public:
  using Completion = std::function<void(std::expected<HTTPResponse, HTTPTransportError>)>;

  virtual ~HTTPTransport() = default;
  // Sends `request` and calls `completion` exactly once, later or before returning.
  virtual void send(const HTTPRequest& request, Completion completion) = 0;
};

}  // namespace tindra
