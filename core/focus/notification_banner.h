// NotificationBanner: one notification banner as the platform read it, in plain values a provider
// fills from the macOS accessibility tree or from org.freedesktop.Notifications. Fields that
// could not be read are empty or absent.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "focus/banner_button.h"

namespace tindra {

struct NotificationBanner {
  std::string identifier{};  // "FACETIME_NOTIFICATION" for a ringing FaceTime call
  std::string summary{};     // "application, sender, preview", separated by ", "
  std::optional<std::string> title{};
  std::optional<std::string> body{};
  std::vector<std::string> actions{};  // action names, in order

  // The pieces of `summary` split at ", " (one piece, possibly empty, without a separator).
  std::vector<std::string_view> summaryComponents() const;
  // The first piece of `summary`: the application's display name.
  std::string app() const;
  // The actions that make buttons, in their order.
  std::vector<BannerButton> buttons() const;

  friend bool operator==(const NotificationBanner&, const NotificationBanner&) = default;
};

}  // namespace tindra
