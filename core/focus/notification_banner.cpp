#include "focus/notification_banner.h"

namespace tindra {

std::vector<std::string_view> NotificationBanner::summaryComponents() const {
  constexpr std::string_view separator = ", ";
  std::vector<std::string_view> components;
  const std::string_view text = summary;
  std::size_t from = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;
       at = text.find(separator, from)) {
    components.push_back(text.substr(from, at - from));
    from = at + separator.size();
  }
  components.push_back(text.substr(from));
  return components;
}

std::string NotificationBanner::app() const {
  return std::string(summaryComponents().front());
}

std::vector<BannerButton> NotificationBanner::buttons() const {
  std::vector<BannerButton> result;
  for (const std::string& action : actions) {
    if (std::optional<BannerButton> button = BannerButton::fromAction(action)) {
      result.push_back(std::move(*button));
    }
  }
  return result;
}

}  // namespace tindra
