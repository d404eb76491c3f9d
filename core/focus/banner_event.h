// BannerEvent: what a classified banner means for the notch: a message or missed call to show
// with its text, or a ringing call shown without any.
#pragma once

#include <optional>
#include <string>
#include <variant>

namespace tindra {

struct BannerEvent {
  struct Notice {
    std::string app;
    std::string title;  // never empty
    std::optional<std::string> body;
    bool isCall = false;  // a missed call rather than a message
    friend bool operator==(const Notice&, const Notice&) = default;
  };
  struct IncomingCall {
    friend bool operator==(const IncomingCall&, const IncomingCall&) = default;
  };

  std::variant<Notice, IncomingCall> value;

  static BannerEvent notice(std::string app, std::string title, std::optional<std::string> body,
                            bool isCall) {
    return BannerEvent{Notice{std::move(app), std::move(title), std::move(body), isCall}};
  }
  static BannerEvent incomingCall() { return BannerEvent{IncomingCall{}}; }

  // The notice, or nullptr for a ringing call.
  const Notice* asNotice() const { return std::get_if<Notice>(&value); }
  bool isIncomingCall() const { return std::holds_alternative<IncomingCall>(value); }

  friend bool operator==(const BannerEvent&, const BannerEvent&) = default;
};

}  // namespace tindra
