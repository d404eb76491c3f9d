// BrowserTabTitle: the track title hidden in a YouTube tab's page title. Drops the unread-count
// prefix ("(3) ") and the site suffix (" - YouTube", " - YouTube Music"); a title that is only the
// site's name, or nothing, is no title.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tindra::BrowserTabTitle {

// The cleaned title; none when nothing but decoration remains.
std::optional<std::string> trackTitle(std::string_view pageTitle);

}  // namespace tindra::BrowserTabTitle
