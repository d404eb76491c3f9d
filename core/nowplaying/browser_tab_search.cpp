#include "nowplaying/browser_tab_search.h"

namespace tindra::BrowserTabSearch {

bool isMediaURL(std::string_view url) {
  for (std::string_view prefix : mediaURLPrefixes) {
    if (url.starts_with(prefix)) return true;
  }
  return false;
}

std::optional<Choice> choose(std::span<const std::vector<Tab>> windows) {
  std::optional<Choice> chosen;
  for (std::size_t w = 0; w < windows.size(); ++w) {
    for (std::size_t t = 0; t < windows[w].size(); ++t) {
      const Tab& tab = windows[w][t];
      if (!isMediaURL(tab.url)) continue;
      const bool playing = tab.state.starts_with("playing");
      if (!chosen || playing) chosen = Choice{w, t};
      if (playing) return chosen;
    }
  }
  return chosen;
}

}  // namespace tindra::BrowserTabSearch
