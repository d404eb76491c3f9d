// BrowserTabSearch: which browser tab the player scripts read and command. The rule lives in the
// scripts (AppleScript walks the windows); this is the same rule in C++, with the watch-page
// prefixes the scripts are built from, so both are written once and the rule can be tested.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tindra::BrowserTabSearch {

// Secure YouTube watch pages: www, mobile, bare and YouTube Music hosts.
inline constexpr std::array<std::string_view, 4> mediaURLPrefixes{
    "https://www.youtube.com/watch", "https://m.youtube.com/watch", "https://youtube.com/watch",
    "https://music.youtube.com/watch"};

// True when `url` starts with one of the watch-page prefixes.
bool isMediaURL(std::string_view url);

// One tab as the search sees it: its address and the state its page reported ("playing,…").
struct Tab {
  std::string_view url;
  std::string_view state;
};

struct Choice {
  std::size_t window = 0;
  std::size_t tab = 0;
  friend bool operator==(const Choice&, const Choice&) = default;
};

// The first media tab in window order, replaced by the first later one whose state starts with
// "playing"; none when no tab is a media tab.
std::optional<Choice> choose(std::span<const std::vector<Tab>> windows);

}  // namespace tindra::BrowserTabSearch
