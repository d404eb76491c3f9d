#include "nowplaying/browser_tab_title.h"

#include <array>

#include "base/unicode_text.h"

namespace tindra::BrowserTabTitle {
namespace {

// Longest first, so " - YouTube Music" is not cut to " Music".
constexpr std::array<std::string_view, 2> siteSuffixes{" - YouTube Music", " - YouTube"};
constexpr std::array<std::string_view, 2> siteNames{"YouTube Music", "YouTube"};

// "(3) Title" or "(99+) Title": YouTube's count of unread notifications.
std::string_view withoutUnreadCount(std::string_view title) {
  if (!title.starts_with('(')) return title;
  std::size_t i = 1;
  while (i < title.size() && title[i] >= '0' && title[i] <= '9') ++i;
  if (i == 1) return title;
  if (i < title.size() && title[i] == '+') ++i;
  if (!title.substr(i).starts_with(") ")) return title;
  return title.substr(i + 2);
}

std::string_view withoutSiteSuffix(std::string_view title) {
  for (std::string_view suffix : siteSuffixes) {
    if (title.ends_with(suffix)) return title.substr(0, title.size() - suffix.size());
  }
  return title;
}

}  // namespace

std::optional<std::string> trackTitle(std::string_view pageTitle) {
  std::string_view title = trimmedUnicodeWhitespace(pageTitle);
  title = trimmedUnicodeWhitespace(withoutSiteSuffix(withoutUnreadCount(title)));
  for (std::string_view name : siteNames) {
    if (title == name) return std::nullopt;
  }
  if (title.empty()) return std::nullopt;
  return std::string(title);
}

}  // namespace tindra::BrowserTabTitle
