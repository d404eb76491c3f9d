#include "focus/banner_classifier.h"

#include <string>
#include <vector>

namespace tindra {

namespace {

std::string titleOf(const NotificationBanner& banner) {
  if (banner.title) return *banner.title;
  const std::vector<std::string_view> components = banner.summaryComponents();
  return components.size() >= 2 ? std::string(components[1]) : std::string();
}

}  // namespace

std::optional<BannerEvent> BannerClassifier::classify(const NotificationBanner& banner,
                                                      std::string_view messagesApp,
                                                      std::string_view callApp,
                                                      bool messagesEnabled, bool callsEnabled) {
  if (banner.identifier == ringingCallIdentifier) {
    return callsEnabled ? std::optional(BannerEvent::incomingCall()) : std::nullopt;
  }
  std::string app = banner.app();
  const bool isMessages = !app.empty() && app == messagesApp;
  const bool isCall = !app.empty() && app == callApp;
  if (!((isCall && callsEnabled) || (isMessages && messagesEnabled))) return std::nullopt;
  std::string title = titleOf(banner);
  if (title.empty()) return std::nullopt;
  return BannerEvent::notice(std::move(app), std::move(title), banner.body, isCall);
}

}  // namespace tindra
